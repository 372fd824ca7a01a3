#include <array>
#include <string>

#include "tests/screens/ControlScreen.h"

namespace korvane::test {

namespace {

CLQSurfHandle Image(const std::wstring& file) {
    return CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), true);
}

_FreqStruct_ Fm() {
    return {87.5f, 108.0f, 0.05f, true, L"MHz"};
}

/// A screen with one control of that class.
template <class Ctrl>
class ScreenOf : public ControlScreen {
  public:
    _LQRect ChangedRect() override { return ctrl_.GetScreenRect(); }

  protected:
    ~ScreenOf() override = default;

    Ctrl ctrl_;
};

class NumberWheel final : public ScreenOf<CLQNumSlider> {
  public:
    NumberWheel() {
        window_.SetBkgSurf(L"RadioBkg.lqi");
        ctrl_.Create(248, 118, 312, 212);
        ctrl_.SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
        ctrl_.SetFontSize(72, 72);
        ctrl_.SetSeekUpGnd(L"SeekUp.lqi");
        ctrl_.SetSeekDownGnd(L"SeekDown.lqi");
        ctrl_.SetBoundScalFreqID(Fm());
        Show(false);
        window_.AddChild(&ctrl_);
    }

  private:
    void Show(bool changed) override { ctrl_.SetVaule(changed ? 98.55f : 98.5f); }
};

class Gauge final : public ScreenOf<CLQDialScaleEx> {
  public:
    Gauge() {
        ctrl_.Create(50, 70, 400, 400);
        ctrl_.SetBkgSurf(L"DialFace.lqi");
        ctrl_.SetPointerSurf(L"DialNeedle1.lqi", L"DialNeedle2.lqi", L"DialNeedle3.lqi");
        struct Needle {
            int startAngle, endAngle, marks, mark;
            tagPOINT pivot;
        };
        constexpr Needle kNeedles[] = {
            {150, 30, 241, 90, {22, 8}}, {200, 20, 61, 23, {22, 6}}, {100, 170, 101, 60, {26, 26}}};
        for (int i = 0; i < 3; ++i) {
            Needle needle = kNeedles[i];
            ctrl_.SetPointerCenter(i, &needle.pivot);
            ctrl_.SetStartAngle(i, needle.startAngle);
            ctrl_.SetEndAngle(i, needle.endAngle);
            ctrl_.SetDialScaleNum(i, needle.marks);
            ctrl_.SetCurrentDialScale(i, needle.mark);
        }
        window_.AddChild(&ctrl_);
    }

  private:
    void Show(bool changed) override { ctrl_.SetCurrentDialScale(0, changed ? 91 : 90); }
};

class TuningScale final : public ScreenOf<CLQDialSlider> {
  public:
    TuningScale() {
        ctrl_.Create(600, 75, 150, 384);
        ctrl_.SetBKgnd(L"TuningBkg.lqi");
        ctrl_.SetPointgnd(L"TuningPointer.lqi");
        ctrl_.SetIcongnd(L"TuningPreset.lqi");
        ctrl_.SetShadowGnd(L"TuningShadow.lqi");
        ctrl_.SetFontSize(20, 20);
        ctrl_.SetBoundScalFreqID(Fm());
        ctrl_.SetScal(0.1f);
        for (const float preset : {97.3f, 98.2f, 98.5f, 98.9f, 99.3f, 104.0f})
            ctrl_.AddShortcut(preset);
        Show(false);
        window_.AddChild(&ctrl_);
    }

  private:
    void Show(bool changed) override { ctrl_.SetVaule(changed ? 98.6f : 98.5f); }
};

/// The change is the thumb's way from one value to the next, all across the slider.
class ProgressSlider final : public ScreenOf<CLQSliderExCtrl> {
  public:
    ProgressSlider() {
        ctrl_.Create(0, 170, 800, 210);
        ctrl_.SetInset(0, 32);
        ctrl_.SetTrackOffset(64);
        ctrl_.SetThumbOffset(32);
        ctrl_.SetBkgSurf(L"MediaTrack.lqi");
        ctrl_.SetFillSurf(L"MediaFill.lqi");
        ctrl_.SetThumbSurf(L"MediaThumb.lqi");
        ctrl_.SetThumbPressedSurf(L"MediaThumbPressed.lqi");
        ctrl_.SetReapetBkgSurf(L"MediaBand.lqi");
        ctrl_.SetReapetASurf(L"MediaPointA.lqi");
        ctrl_.SetReapetBSurf(L"MediaPointB.lqi");
        ctrl_.SetReapetIconOffset(172);
        ctrl_.SetRange(0, 328);
        ctrl_.EnableReapetAIcon(90);
        ctrl_.EnableReapetBIcon(240);
        Show(false);
        window_.AddChild(&ctrl_);
    }

    _LQRect ChangedRect() override {
        // The thumb, 16 wide, moves by 2 pixels for each of the 328 values.
        _LQRect way = ctrl_.GetScreenRect();
        way.left += 64 + 2 * 180;
        way.right = way.left + 2 + 16;
        return way;
    }

  private:
    void Show(bool changed) override { ctrl_.SetValue(changed ? 181 : 180); }
};

class SourceList final : public ScreenOf<CLQSwitchList> {
  public:
    SourceList() {
        ctrl_.Create(60, 70, 240, 400);
        ctrl_.SetBkgSurf(L"SwitchBkg.lqi");
        ctrl_.SetIconNumPrePage(5);
        std::vector<CLQSurfHandle*> look = Load(0, L"_n.lqi");
        ctrl_.SetIconNormalSurf(look);
        look = Load(1, L"_p.lqi");
        ctrl_.SetIconActiveSurf(look);
        look = Load(2, L"_f.lqi");
        ctrl_.SetIconFocusSurf(look);
        look = Load(3, L"_d.lqi");
        ctrl_.SetIconDisableSurf(look);
        std::vector<std::wstring> captions = {L"Radio", L"DAB radio", L"Disc", L"USB music", L"More"};
        ctrl_.SetText(captions);
        ctrl_.SetFontSize(17, 17);
        Show(false);
        window_.AddChild(&ctrl_);
    }

  private:
    std::vector<CLQSurfHandle*> Load(std::size_t look, const wchar_t* state) {
        for (const wchar_t* const cell : {L"tuner", L"dab", L"disc_audio", L"usb_audio", L"page_down"})
            icons_[look].push_back(Image(std::wstring(L"switch_") + cell + state));
        std::vector<CLQSurfHandle*> borrowed;
        for (CLQSurfHandle& icon : icons_[look])
            borrowed.push_back(&icon);
        return borrowed;
    }

    void Show(bool changed) override { ctrl_.SetFouceIndex(changed ? 2 : 1); }

    std::array<std::vector<CLQSurfHandle>, 4> icons_;
};

class MenuTile final : public ScreenOf<CLQMenuItemCtrl> {
  public:
    MenuTile() {
        ctrl_.Create(282, 76, 236, 184);
        ctrl_.SetImagePos(4, 4);
        ctrl_.SetImage(L"menu_radio_%d.lqi", 2, 228, 132, 100);
        ctrl_.SetBorderSurf(L"MenuFrameLeft_n.lqi", 0, 20, eBorder_Left);
        ctrl_.SetBorderSurf(L"MenuFrameTop_n.lqi", 0, 0, eBorder_Top);
        ctrl_.SetBorderSurf(L"MenuFrameRight_n.lqi", 232, 20, eBorder_Right);
        ctrl_.SetBorderSurf(L"MenuFrameBottom_n.lqi", 0, 164, eBorder_Bottom);
        ctrl_.SetTextShaderSurf(L"MenuCaption.lqi");
        ctrl_.SetTextPos(118, 158);
        ctrl_.SetCurSourceSurf(L"MenuPlaying.lqi");
        ctrl_.EnableCurSource(true);
        auto* const text = new CLQTextElement;  // the tile owns it
        text->SetRect(0, 136, 236, 44);
        text->SetText(L"Radio");
        ctrl_.BindTextElement(text);
        window_.AddChild(&ctrl_);
    }

  private:
    /// The next of two pictures is also the one before.
    void Show(bool) override { ctrl_.OnRefreshTimer(nullptr, 0); }
};

/// The change is the current entry's name alone, whose label can be told by its text.
class FileBrowser final : public ScreenOf<CLQFileView> {
  public:
    FileBrowser() {
        ctrl_.Create(250, 60, 300, 410);
        Show(false);
        window_.AddChild(&ctrl_);
    }

    _LQRect ChangedRect() override {
        for (int i = 0; i < ctrl_.GetChildCount(); ++i) {
            auto* const label = dynamic_cast<CLQStatic*>(ctrl_.GetChild(i));
            if (label && (label->GetText() == kNames[0] || label->GetText() == kNames[1]))
                return label->GetScreenRect();
        }
        return {};
    }

  private:
    static constexpr const wchar_t* kNames[] = {L"Aufnahmen", L"Grüße aus Zürich"};

    void Show(bool changed) override {
        ctrl_.ChangImage(L"Concerts", L"Ελληνικά", kNames[changed ? 1 : 0], false);
    }
};

/// The change is a second of the play time.
class Strip final : public ControlScreen {
  public:
    Strip() {
        strip_.Create(0, 0, 800, 480);
        strip_.OnInit();
        strip_.SetTitleInfo(L"USB music", false, 0);
        strip_.EnablePlayTime(true);
        Show(false);
    }

    void BringToTop() override {
        ControlScreen::BringToTop();
        CLQScreen::GetInstance()->BringToTop(&strip_);
    }

    _LQRect ChangedRect() override {
        CLQGroupCtrl& title = *strip_.GetGpTitle();
        title.BuildRelationNameToPtr();
        CLQBaseCtrl* const playTime = title.FindCtrl(L"StPlayTime");
        title.ReleaseRelationMap();
        return playTime ? playTime->GetScreenRect() : _LQRect();
    }

  private:
    void Show(bool changed) override { strip_.SetPlayTime(changed ? L"3:08" : L"3:07", false); }

    CLQTitleDialog strip_;
};

template <class Screen>
std::unique_ptr<ControlScreen> Make() {
    return std::make_unique<Screen>();
}

}  // namespace

const std::vector<ControlScreenKind>& ControlScreenKinds() {
    static const std::vector<ControlScreenKind> kinds = {
        {"number wheel", &Make<NumberWheel>}, {"gauge", &Make<Gauge>},
        {"tuning scale", &Make<TuningScale>}, {"progress slider", &Make<ProgressSlider>},
        {"switch list", &Make<SourceList>},   {"menu item", &Make<MenuTile>},
        {"file view", &Make<FileBrowser>},    {"title strip", &Make<Strip>},
    };
    return kinds;
}

}  // namespace korvane::test
