#include "tests/support/AllocationCount.h"
#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class SteadyStrip : public TestStrip {
  protected:
    SteadyStrip() {
        Start();
        for (const wchar_t* field : {L"gps", L"mute", L"btState", L"guideAvail", L"frontRearAvail"})
            Set(field, 1);
        Set(L"rdsIconMask", 31);
        dialog->SetTitleInfo(L"Station one", false, 0);
        dialog->EnablePlayTime(true);
        dialog->SetPlayTime(L"12:34", false);
    }

    void Repaint(int times) {
        for (int i = 0; i < times; ++i) {
            dialog->InvalidateRect(dialog->GetGpTitle()->GetScreenRect());
            scene.Pump();
        }
    }
};

TEST_F(SteadyStrip, IsPaintedWithoutAllocation) {
    Repaint(10);
    CLQScreen::GetInstance()->ResetCounters();
    const int before = AllocationCount();
    Repaint(100);
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 100);
}

TEST_F(SteadyStrip, FlashesWithoutAllocation) {
    Set(L"afState", 2);
    scene.Advance(2000);
    CLQScreen::GetInstance()->ResetCounters();
    const int before = AllocationCount();
    // Short of the next tick of the clock, whose text is made anew.
    scene.Advance(2500);
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 5);
}

TEST_F(SteadyStrip, AsksForNoRepaintWhenWhatIsRefreshedStaysAsItIs) {
    Set(L"afState", 1);
    scene.Pump();
    CLQScreen::GetInstance()->ResetCounters();
    for (int item = 0; item <= 32; ++item) {
        // These two set texts and sizes anew.
        if (item != kItemClockForm && item != kItemTrafficAnnouncement)
            Notify(item);
    }
    scene.Advance(20000);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0);
}

}  // namespace
}  // namespace korvane::test
