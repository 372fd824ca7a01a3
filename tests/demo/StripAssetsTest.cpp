#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "KorvaneEx.h"

#include "tests/demo/DemoScene.h"

namespace korvane::demo {

namespace {

constexpr _LQRect kStrip = {0, 800, 0, 60};
constexpr const wchar_t* kStates[] = {L"_n.lqi", L"_p.lqi", L"_f.lqi", L"_d.lqi"};

CLQSurfHandle Image(const std::wstring& file) {
    return CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), true);
}

_LQRect RectOf(CLQBaseCtrl& ctrl) {
    _LQRect rect;
    int width = 0;
    int height = 0;
    ctrl.GetScreenXY(rect.left, rect.top);
    ctrl.GetSize(width, height);
    rect.right = rect.left + width;
    rect.bottom = rect.top + height;
    return rect;
}

bool IsInside(const _LQRect& inner, const _LQRect& outer) {
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

bool Overlap(const _LQRect& a, const _LQRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

/// The labels, pictures and buttons of a group that are shown, at any depth.
void CollectShown(CLQGroupCtrl& group, std::vector<CLQBaseCtrl*>& shown) {
    for (int i = 0; i < group.GetChildCount(); ++i) {
        CLQBaseCtrl* const child = group.GetChild(i);
        if (auto* const inner = dynamic_cast<CLQGroupCtrl*>(child))
            CollectShown(*inner, shown);
        else if (child->IsOwnerShow())
            shown.push_back(child);
    }
}

class StripAssets : public testing::Test {
  protected:
    StripAssets() {
        link_.Load();
        record_ = link_.GetSysInfo();
    }
    ~StripAssets() override { link_.Unload(); }

    template <class Control>
    static Control* Find(CLQGroupCtrl& group, const std::wstring& name) {
        group.BuildRelationNameToPtr();
        auto* const control = dynamic_cast<Control*>(group.FindCtrl(name.c_str()));
        group.ReleaseRelationMap();
        return control;
    }

    test::DemoScene scene_;
    CLQShareMemLink link_;
    _LQSysInfo* record_ = nullptr;
};

}  // namespace

TEST_F(StripAssets, HaveEveryControlThatTheStripLooksFor) {
    CLQGroupCtrl title;
    ASSERT_TRUE(title.LoadGroupCtrlFromBin(L"GpTitle.bin"));
    for (const wchar_t* const name : {L"BtnTACancel", L"BtnToFront", L"BtnToRear", L"BtnGuide", L"BtnBack"})
        EXPECT_NE(Find<CLQButton>(title, name), nullptr) << name;
    for (const wchar_t* const name : {L"GpIconInfo", L"GpRDS", L"Gp12HR"})
        EXPECT_NE(Find<CLQGroupCtrl>(title, name), nullptr) << name;
    for (const wchar_t* const name :
         {L"StInfo", L"IconGPS", L"IconMute", L"IconBT", L"IconREG", L"IconPTY", L"IconAF", L"IconTA",
          L"IconTP", L"St24HR", L"St12HR", L"IconAM", L"IconPM"})
        EXPECT_NE(Find<CLQStatic>(title, name), nullptr) << name;

    CLQGroupCtrl panel;
    ASSERT_TRUE(panel.LoadGroupCtrlFromBin(L"dlgShortCut.bin"));
    for (int i = 1; i <= 5; ++i)
        EXPECT_NE(Find<CLQButton>(panel, L"ShortCutBtn" + std::to_wstring(i)), nullptr) << i;

    CLQGroupCtrl shadow;
    ASSERT_TRUE(shadow.LoadGroupCtrlFromBin(L"dlgshortcutshadow.bin"));
    EXPECT_NE(Find<CLQButton>(shadow, L"Button_shortcutback"), nullptr);
}

TEST_F(StripAssets, HaveEveryImageThatTheStripShows) {
    for (const wchar_t* const image :
         {L"title_icon_bt_gray.lqi", L"title_icon_bt_active.lqi", L"title_icon_reg_f.lqi",
          L"title_icon_reg_n.lqi", L"title_icon_pty_f.lqi", L"title_icon_pty_n.lqi", L"title_icon_af_f.lqi",
          L"title_icon_af_n.lqi", L"title_icon_ta_f.lqi", L"title_icon_ta_n.lqi", L"title_icon_tp_f.lqi",
          L"title_icon_tp_n.lqi"})
        EXPECT_NE(Image(image).GetSurface(), nullptr) << image;
}

TEST_F(StripAssets, ShowEachSourceOnItsButtonInFourLooksOfOneSize) {
    for (const wchar_t* const source : {L"tuner", L"dab", L"disc_audio", L"disc_video", L"bt_audio",
                                        L"usb_audio", L"usb_video", L"ipod_audio", L"ipod_video", L"aux1",
                                        L"aux2", L"tv", L"telephone", L"navi", L"usb_camera", L"audio_off"}) {
        std::vector<std::vector<std::uint32_t>> looks;
        for (const wchar_t* const state : kStates) {
            CLQSurfHandle image = Image(std::wstring(L"settings_shortcut_menu_") + source + state);
            EXPECT_EQ(image.GetWidth(), 144) << source << state;
            EXPECT_EQ(image.GetHeight(), 128) << source << state;
            for (const std::vector<std::uint32_t>& other : looks)
                EXPECT_NE(test::PixelsOf(image), other) << source << state;
            looks.push_back(test::PixelsOf(image));
        }
        EXPECT_NE(Image(std::wstring(L"source_") + source + L".lqi").GetSurface(), nullptr) << source;
    }
}

TEST_F(StripAssets, LeaveNothingOverAnythingElseWhateverTheStripShows) {
    ASSERT_NE(record_, nullptr);
    CLQTitleDialog dialog;
    dialog.Create(0, 0, 800, 480);
    dialog.OnInit();
    record_->btState = 1;
    record_->gps = record_->mute = 1;
    record_->rdsIconMask = 31;
    for (unsigned flags = 0; flags < 64; ++flags) {
        record_->taActive = (flags & 1) != 0;
        record_->frontRearAvail = (flags & 2) != 0;
        record_->guideAvail = (flags & 4) != 0;
        record_->clock24h = (flags & 8) != 0;
        dialog.SetTitleBackBtnShow((flags & 16) != 0);
        dialog.EnablePlayTime((flags & 32) != 0);
        for (const bool toRear : {false, true}) {
            dialog.SetSourceType(toRear);
            dialog.UpdateAllIcon();
            std::vector<CLQBaseCtrl*> shown;
            CollectShown(*dialog.GetGpTitle(), shown);
            for (std::size_t i = 0; i < shown.size(); ++i) {
                EXPECT_TRUE(IsInside(RectOf(*shown[i]), kStrip)) << flags << " " << shown[i]->GetCtrlName();
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_FALSE(Overlap(RectOf(*shown[i]), RectOf(*shown[j])))
                        << flags << ": " << shown[i]->GetCtrlName() << ", " << shown[j]->GetCtrlName();
            }
        }
    }
}

TEST_F(StripAssets, HangThePanelFromTheStripAndTheVeilFromThePanel) {
    CLQTitleDialog dialog;
    dialog.Create(0, 0, 800, 480);
    dialog.OnInit();
    const _LQRect strip = RectOf(*dialog.GetGpTitle());
    const _LQRect panel = RectOf(*dialog.GetShortCutControl());
    const _LQRect veil = RectOf(*dialog.GetShortCurShadow());
    EXPECT_EQ(strip.top, 0);
    EXPECT_EQ(panel.top, strip.bottom);
    EXPECT_EQ(veil.top, panel.bottom);
    EXPECT_EQ(veil.bottom, 480);
    for (const _LQRect& rect : {strip, panel, veil}) {
        EXPECT_EQ(rect.left, 0);
        EXPECT_EQ(rect.right, 800);
    }
}

TEST_F(StripAssets, GiveTheButtonsOfAFreshPanelTheFactorySources) {
    CLQTitleDialog dialog;
    dialog.Create(0, 0, 800, 480);
    dialog.OnInit();
    CLQIniReadWrite shortcuts;
    shortcuts.SetFileName(L"\\NandFlash\\Data\\ShortCut.ini");
    const std::array<int, 5> factory = {0, 4, 6, 11, 17};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(shortcuts.GetInt(L"ShortCut", std::to_wstring(i + 1).c_str(), -1),
                  factory[static_cast<std::size_t>(i)]);
}

}  // namespace korvane::demo
