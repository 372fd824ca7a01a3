#include <cwchar>

#include "platform/Simulation.h"

#include "bench/engine/PeerText.h"
#include "bench/engine/Peers.h"
#include "bench/engine/Register.h"

namespace korvane::bench {

namespace {

constexpr wchar_t kLine[] = L"Traffic info received, N";
constexpr int kSize = 24;

std::string DefaultFontFile() {
    return ToHostPath(ResourcePath(ResourceKind::Font, L"NotoSans-Regular.ttf").c_str());
}

/// Twelve digits that differ from call to call.
struct Counter {
    unsigned count = 0;
    wchar_t text[16] = {};
    const wchar_t* Next() {
        count = count * 1664525U + 1013904223U;
        unsigned long long value = count * 97ULL;
        for (int i = 0; i < 12; ++i) {
            text[i] = static_cast<wchar_t>(L'0' + value % 10);
            value = value / 10 + count % 7;
        }
        return text;
    }
};

}  // namespace

void RegisterTexts() {
    CLQFont* font = CLQFontManager::GetInstance()->GetDefaultFont();
    Register("24-character line at 24 px|ours", [font, target = MakeTarget()]() mutable {
        _LQColor white{255, 255, 255, 255};
        font->SetFontSize(kSize, kSize);
        target.DrawTextW(kLine, font, 100, 100, 0, white, nullptr, 0);
    });
    auto peer = std::make_shared<PeerText>(DefaultFontFile(), kSize);
    auto target = std::make_shared<PeerTarget>();
    Register("24-character line at 24 px|pixman",
             [peer, target] { peer->Draw(kLine, target->pixman, 100, 100); });

    Register("12 changing digits at 24 px|ours",
             [font, surface = MakeTarget(), counter = Counter()]() mutable {
                 _LQColor white{255, 255, 255, 255};
                 font->SetFontSize(kSize, kSize);
                 surface.DrawTextW(counter.Next(), font, 100, 100, 0, white, nullptr, 0);
             });
    Register("12 changing digits at 24 px|pixman", [peer, target, counter = Counter()]() mutable {
        peer->Draw(counter.Next(), target->pixman, 100, 100);
    });
}

}  // namespace korvane::bench
