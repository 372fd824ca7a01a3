#include "tools/headunitctl/ScreenCommands.h"

#include <random>
#include <vector>

#include "engine/draw/LqiFormat.h"
#include "engine/draw/SurfManager.h"
#include "platform/Files.h"
#include "platform/coredll.h"

#include "tools/headunitctl/HeadUnitWindow.h"
#include "tools/png/SurfacePicture.h"

namespace korvane::tools {

namespace {

constexpr int kMovePeriodMs = 10;

constexpr char kNoHeadUnit[] = "no head unit is running on this device";
constexpr char kNoAnswer[] = "the head unit does not answer";

UINT MessageOf(TouchPhase phase) {
    switch (phase) {
        case TouchPhase::Press:
            return WM_LBUTTONDOWN;
        case TouchPhase::Move:
            return WM_MOUSEMOVE;
        case TouchPhase::Release:
            return WM_LBUTTONUP;
    }
    return WM_NULL;
}

/// The window of the running head unit.
class HeadUnit {
  public:
    HeadUnit() : window_(FindWindowW(kHeadUnitClass, nullptr)) {}

    /// Success when it is there and all of these points lie on its screen.
    Outcome CheckPoints(const std::vector<ScreenPoint>& points) const {
        if (!window_)
            return Outcome::Failure(kNoHeadUnit);
        DWORD_PTR size = 0;
        const bool isAnswered = Request(kRequestScreenSize, 0, size);
        const int width = LOWORD(size);
        const int height = HIWORD(size);
        if (!isAnswered || width == 0 || height == 0)
            return Outcome::Failure(kNoAnswer);
        for (const ScreenPoint& point : points) {
            if (point.x < 0 || point.y < 0 || point.x >= width || point.y >= height)
                return Outcome::WrongUsage(std::to_string(point.x) + " " + std::to_string(point.y) +
                                           " lies outside the screen, which is " + std::to_string(width) +
                                           " by " + std::to_string(height) + " pixels");
        }
        return {};
    }

    Outcome Post(TouchPhase phase, ScreenPoint at) const {
        const WPARAM buttons = phase == TouchPhase::Release ? 0 : MK_LBUTTON;
        return PostMessageW(window_, MessageOf(phase), buttons, MAKELPARAM(at.x, at.y))
                   ? Outcome()
                   : Outcome::Failure("the head unit takes no touch: it has ended, or its queue is full");
    }

    /// Has the head unit write what it shows into a file and reads that.
    Outcome ReadScreen(CLQSurfHandle& picture) const {
        if (!window_)
            return Outcome::Failure(kNoHeadUnit);
        // A number of one's own, so that nobody's picture is taken for another's.
        const WPARAM number = std::random_device()();
        const std::wstring file = PictureFile(number);
        DWORD_PTR isSaved = 0;
        if (!Request(kRequestPicture, number, isSaved))
            return Outcome::Failure(kNoAnswer);
        if (isSaved == 0)
            return Outcome::Failure("the head unit cannot save its picture");
        std::vector<unsigned char> bytes;
        const bool isRead = ReadWholeFile(file.c_str(), kLqiMaxSize, bytes);
        DeleteFileW(file.c_str());
        picture = CLQSurfManager::GetInstance()->CreateSurface(1, 1, eSurface_ARGB8888, true);
        if (!isRead || bytes.empty() || !picture.GetSurface() ||
            picture.GetSurface()->CreateSurfaceFromBuffer(
                bytes.data(), L"lqi", static_cast<int>(bytes.size()), false) != eError_None)
            return Outcome::Failure("the head unit's picture cannot be read");
        return {};
    }

  private:
    /// False when it does not answer in five seconds.
    bool Request(UINT message, WPARAM wParam, DWORD_PTR& answer) const {
        constexpr UINT kPatienceMs = 5000;
        return SendMessageTimeoutW(window_, message, wParam, 0, SMTO_NORMAL, kPatienceMs, &answer) != 0;
    }

    HWND window_;
};

}  // namespace

Outcome Touch(TouchPhase phase, ScreenPoint at) {
    const HeadUnit headUnit;
    const Outcome check = headUnit.CheckPoints({at});
    return check.status == Outcome::kSuccess ? headUnit.Post(phase, at) : check;
}

Outcome Swipe(ScreenPoint from, ScreenPoint to, int ms) {
    const HeadUnit headUnit;
    Outcome outcome = headUnit.CheckPoints({from, to});
    if (outcome.status != Outcome::kSuccess)
        return outcome;
    outcome = headUnit.Post(TouchPhase::Press, from);
    const int moves = ms / kMovePeriodMs + 1;
    for (int i = 1; i <= moves && outcome.status == Outcome::kSuccess; ++i) {
        const ScreenPoint at = {from.x + (to.x - from.x) * i / moves, from.y + (to.y - from.y) * i / moves};
        outcome = headUnit.Post(TouchPhase::Move, at);
        if (i < moves)
            Sleep(kMovePeriodMs);
    }
    return outcome.status == Outcome::kSuccess ? headUnit.Post(TouchPhase::Release, to) : outcome;
}

Outcome TakeScreenshot(const std::string& pngFile) {
    CLQSurfHandle picture;
    const Outcome outcome = HeadUnit().ReadScreen(picture);
    if (outcome.status != Outcome::kSuccess)
        return outcome;
    std::string reason;
    if (!png::WritePng(pngFile, png::FromSurface(picture), reason))
        return Outcome::Failure(pngFile + ": " + reason);
    return {};
}

}  // namespace korvane::tools
