#include <map>
#include <set>

#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

using Names = std::set<std::string>;

/// Changes the whole record behind the strip's back, so that a message shows what it refreshes.
class Notification : public TestStrip {
  protected:
    Notification() { Start(); }

    /// Everything that the strip shows of the record.
    std::map<std::string, std::string> Look() {
        std::map<std::string, std::string> look;
        for (const wchar_t* name : {L"IconBT", L"IconREG", L"IconPTY", L"IconAF", L"IconTA", L"IconTP",
                                    L"IconMute", L"IconGPS", L"BtnGuide", L"BtnTACancel", L"BtnToRear"})
            look[std::string(name, name + std::wcslen(name))] = ImageSeenAt(name);
        look["clock"] = Find(L"St24HR")->IsShow() ? "24 hours" : "12 hours";
        const std::wstring& text = Find<CLQStatic>(L"StTAText")->GetText();
        look["traffic text"] = text == L"Verkehrsinformationen empfangen" ? "German" : "other";
        // Of the factory sources this is the disc's.
        look["panel"] =
            FindIn(dialog->GetShortCutControl(), L"ShortCutBtn2")->IsWindowEnabled() ? "on" : "off";
        return look;
    }

    void SwitchEverythingOn() {
        _LQSysInfo& record = Record();
        record.btState = 2;
        record.clock24h = 1;
        record.mute = 1;
        record.parking = 1;
        record.gps = 1;
        record.rdsIconMask = 31;
        record.regOn = 1;
        record.ptyOn = 1;
        record.afState = 1;
        record.taOn = 1;
        record.tpOn = 1;
        record.taActive = 1;
        record.frontRearAvail = 1;
        record.guideAvail = 1;
        record.language = 5;
        record.discAudioPresent = 1;
    }

    Names Refreshed(int item) {
        Record() = _LQSysInfo();
        dialog->UpdateAllIcon();
        Notify(kItemLanguage);
        Notify(kItemUsb);
        const auto before = Look();
        SwitchEverythingOn();
        EXPECT_EQ(Look(), before) << "the strip waits to be told";
        Notify(item);
        Names refreshed;
        for (const auto& [name, look] : Look()) {
            if (look != before.at(name))
                refreshed.insert(name);
        }
        return refreshed;
    }
};

TEST_F(Notification, RefreshesWhatItsItemNames) {
    const std::map<int, Names> rows = {
        {1, {"IconBT", "panel"}}, {4, {"clock"}},
        {5, {"IconMute"}},        {7, {"IconREG", "IconPTY", "IconAF", "IconTA", "IconTP"}},
        {8, {"IconREG"}},         {9, {"IconPTY"}},
        {10, {"IconAF"}},         {11, {"IconTA"}},
        {12, {"IconTP"}},         {13, {"IconGPS"}},
        {14, {"BtnGuide"}},       {15, {"BtnTACancel"}},
        {16, {"BtnToRear"}},      {17, {"traffic text"}},
        {22, {"panel"}},          {23, {"panel"}},
        {24, {"panel"}},          {25, {"panel"}},
        {26, {"panel"}},          {27, {"panel"}},
        {28, {"panel"}},
    };
    for (const auto& [item, names] : rows)
        EXPECT_EQ(Refreshed(item), names) << item;
}

TEST_F(Notification, OfAnyOtherItemRefreshesNothing) {
    for (const int item :
         {0, 2, 3, 6, 18, 19, 20, 21, 29, 30, 31, 32, 33, 255, 256, 257, -1, -28, 2147483647})
        EXPECT_EQ(Refreshed(item), Names{}) << item;
}

TEST_F(Notification, OfTheClockWritesTheTimeAnew) {
    auto* const clock = Find<CLQStatic>(L"St12HR");
    const std::wstring time = clock->GetText();
    clock->SetText(L"--:--");
    dialog->UpdateAllIcon();
    EXPECT_EQ(clock->GetText(), L"--:--") << "the time has not changed";
    Notify(kItemClockForm);
    EXPECT_EQ(clock->GetText(), time);
}

/// Takes the messages of one code.
class Taker : public CLQBaseCtrl {
  public:
    explicit Taker(unsigned int code) : code_(code) {}
    bool DoMessage(_LQMessage* msg) override {
        if (msg->code == code_)
            taken.push_back(*msg);
        return msg->code == code_;
    }
    std::vector<_LQMessage> taken;

  private:
    unsigned int code_;
};

TEST_F(Notification, IsHandedOnToTheControls) {
    _LQMessage msg;
    msg.code = kMsgSysInfoChanged;
    for (const int item : {0, 5, 28, 29}) {
        msg.param = item;
        EXPECT_FALSE(dialog->DoMessage(&msg)) << "nobody takes it";
    }
    Taker taker(kMsgSysInfoChanged);
    dialog->AddChild(&taker);
    for (const int item : {0, 5, 28, 29}) {
        Record().mute = item == 5;
        msg.param = item;
        EXPECT_TRUE(dialog->DoMessage(&msg));
        EXPECT_EQ(taker.taken.back().param, item);
    }
    EXPECT_EQ(taker.taken.size(), 4u);
    Record().mute = 1;
    msg.param = kItemMute;
    dialog->DoMessage(&msg);
    EXPECT_EQ(ImageSeenAt(L"IconMute"), "mute.lqi") << "after the strip has seen it";
}

TEST_F(Notification, IsTheOnlyMessageThatRefreshes) {
    Record().mute = 1;
    _LQMessage msg;
    msg.param = kItemMute;
    for (const unsigned int code : {0u, 256u, 273u, 512u, 1190u, 1192u}) {
        msg.code = code;
        EXPECT_FALSE(dialog->DoMessage(&msg)) << code;
    }
    EXPECT_FALSE(dialog->DoMessage(nullptr));
    EXPECT_EQ(ImageSeenAt(L"IconMute"), "");
}

}  // namespace
}  // namespace korvane::test
