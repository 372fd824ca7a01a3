#include "platform/Simulation.h"

#include "bench/engine/PeerText.h"
#include "bench/engine/Peers.h"
#include "bench/engine/Register.h"

namespace korvane::bench {

namespace {

constexpr int kTicks = 20;
constexpr const wchar_t* kLabels[] = {L"88.0", L"92.0", L"96.0", L"100.0", L"104.0"};
constexpr int kIcons = 6;

/// A tuner screen: background, ticks, labels, icons, a needle that turns, two shadows.
struct OurFrame {
    CLQSurfHandle target = MakeTarget();
    CLQSurfHandle background = LoadAsImage(OpaquePicture(800, 480), L"frame-background");
    CLQSurfHandle icon = LoadAsImage(IconPicture(32, 32), L"frame-icon");
    CLQSurfHandle needle = LoadAsImage(NeedlePicture(300, 40), L"frame-needle");
    CLQSurfHandle shadow = LoadAsImage(ShadowPicture(400, 60), L"frame-shadow");
    CLQFont* font = CLQFontManager::GetInstance()->GetDefaultFont();
    int angle = 0;

    void operator()() {
        _LQColor black{0, 0, 0, 255};
        _LQColor white{255, 255, 255, 255};
        target.BitBlt(background, 0, 0, 800, 480, 0, 0);
        for (int i = 0; i < kTicks; ++i)
            target.FillRect(200, 60 + 18 * i, 232, 63 + 18 * i, black, false);
        font->SetFontSize(24, 24);
        for (int i = 0; i < 5; ++i)
            target.DrawTextW(kLabels[i], font, 250, 60 + 72 * i, 0, white, nullptr, 0);
        for (int i = 0; i < kIcons; ++i)
            target.BitBlt(icon, 330, 60 + 60 * i, 32, 32, 0, 0);
        target.RotateBlt(needle, 500, 240, 1.0F, 1.0F, 0, 20, angle, 2);
        target.BitBlt(shadow, 200, 0, 400, 60, 0, 0);
        target.BitBlt(shadow, 200, 420, 400, 60, 0, 0);
        angle = (angle + 7) % 360;
    }
};

struct PixmanFrame {
    PeerTarget target;
    PeerImage background{OpaquePicture(800, 480)};
    PeerImage icon{IconPicture(32, 32)};
    PeerImage needle{NeedlePicture(300, 40)};
    PeerImage shadow{ShadowPicture(400, 60)};
    PeerText text{ToHostPath(ResourcePath(ResourceKind::Font, L"NotoSans-Regular.ttf").c_str()), 24};
    int angle = 0;

    void Over(PeerImage& source, int x, int y) {
        pixman_image_composite32(PIXMAN_OP_OVER, source.pixman, nullptr, target.pixman, 0, 0, 0, 0, x, y,
                                 source.picture.width, source.picture.height);
    }

    void operator()() {
        pixman_image_composite32(PIXMAN_OP_SRC, background.pixman, nullptr, target.pixman, 0, 0, 0, 0, 0, 0,
                                 800, 480);
        const pixman_color_t black = {0, 0, 0, 0xFFFF};
        for (int i = 0; i < kTicks; ++i) {
            const pixman_box32_t box = {200, 60 + 18 * i, 232, 63 + 18 * i};
            pixman_image_fill_boxes(PIXMAN_OP_SRC, target.pixman, &black, 1, &box);
        }
        for (int i = 0; i < 5; ++i)
            text.Draw(kLabels[i], target.pixman, 250, 60 + 72 * i);
        for (int i = 0; i < kIcons; ++i)
            Over(icon, 330, 60 + 60 * i);
        PixmanRotate(needle, target, 500, 240, 0, 20, angle);
        Over(shadow, 200, 0);
        Over(shadow, 200, 420);
        angle = (angle + 7) % 360;
    }
};

}  // namespace

void RegisterFrames() {
    Register("tuner frame|ours", OurFrame());
    auto pixman = std::make_shared<PixmanFrame>();
    Register("tuner frame|pixman", [pixman] { (*pixman)(); });
}

}  // namespace korvane::bench
