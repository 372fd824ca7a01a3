#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "engine/text/LangManager.h"
#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/system/ScratchDevice.h"

namespace {

/// Notes the text that it finds in `ChangeLanguage`.
class ListeningWindow : public CLQWindow {
  public:
    ListeningWindow(std::wstring name, std::wstring& log) : name_(std::move(name)), log_(log) {
        Create(0, 0, 100, 100);
    }
    void ChangeLanguage() override {
        CLQWindow::ChangeLanguage();
        log_ += name_ + L":" + CLQLangManager::GetInstance()->GetString(1) + L" ";
        if (onChange)
            onChange();
    }

    std::function<void()> onChange;

  private:
    std::wstring name_;
    std::wstring& log_;
};

class ChangeLanguage : public testing::Test {
  protected:
    ChangeLanguage() {
        CLQScreen::GetInstance()->Open("memory", 100, 100, L"test");
        device_.Write("en.lng", "[language]\nname=English\n[text]\n1=Back\n");
        device_.Write("fr.lng",
                      "[language]\nname=Fran\xC3\xA7"
                      "ais\n[text]\n1=Retour\n");
    }
    ~ChangeLanguage() override { CLQScreen::GetInstance()->Close(); }

    bool Load(const wchar_t* file) { return CLQLangManager::GetInstance()->LoadLanguage(file); }

    ScratchDevice device_;
    std::wstring log_;
};

}  // namespace

TEST_F(ChangeLanguage, ReachesEveryWindowFromTheTopWithTheNewTexts) {
    const ListeningWindow below(L"below", log_);
    const ListeningWindow above(L"above", log_);
    ASSERT_TRUE(Load(L"\\fr.lng"));
    EXPECT_EQ(log_, L"above:Retour below:Retour ");
}

TEST_F(ChangeLanguage, ReachesHiddenWindows) {
    ListeningWindow hidden(L"hidden", log_);
    hidden.SetShow(false);
    ASSERT_TRUE(Load(L"\\fr.lng"));
    EXPECT_EQ(log_, L"hidden:Retour ");
}

TEST_F(ChangeLanguage, IsNotAnnouncedWhenTheTableCannotBeLoaded) {
    const ListeningWindow window(L"window", log_);
    EXPECT_FALSE(Load(L"\\absent.lng"));
    EXPECT_EQ(log_, L"");
}

TEST_F(ChangeLanguage, SurvivesAWindowThatDestroysTheOnesBelow) {
    auto lowest = std::make_unique<ListeningWindow>(L"lowest", log_);
    auto middle = std::make_unique<ListeningWindow>(L"middle", log_);
    ListeningWindow top(L"top", log_);
    top.onChange = [&] {
        middle.reset();
        lowest.reset();
    };
    ASSERT_TRUE(Load(L"\\fr.lng"));
    EXPECT_EQ(log_, L"top:Retour ");
}

TEST_F(ChangeLanguage, SurvivesAWindowThatDestroysItself) {
    const ListeningWindow below(L"below", log_);
    auto top = std::make_unique<ListeningWindow>(L"top", log_);
    top->onChange = [&] { top.reset(); };
    ASSERT_TRUE(Load(L"\\fr.lng"));
    EXPECT_EQ(log_, L"top:Retour below:Retour ");
}

TEST_F(ChangeLanguage, SurvivesAWindowThatRestacksAndOpensOthers) {
    ListeningWindow below(L"below", log_);
    ListeningWindow top(L"top", log_);
    std::unique_ptr<ListeningWindow> opened;
    top.onChange = [&] {
        CLQScreen::GetInstance()->BringToTop(&below);
        opened = std::make_unique<ListeningWindow>(L"opened", log_);
    };
    ASSERT_TRUE(Load(L"\\fr.lng"));
    EXPECT_EQ(log_, L"top:Retour below:Retour ");
}

TEST_F(ChangeLanguage, MayBeChangedAgainByAWindow) {
    const ListeningWindow below(L"below", log_);
    ListeningWindow top(L"top", log_);
    bool once = true;
    top.onChange = [&] {
        if (std::exchange(once, false))
            Load(L"\\en.lng");
    };
    ASSERT_TRUE(Load(L"\\fr.lng"));
    EXPECT_EQ(log_, L"top:Retour top:Back below:Back below:Back ");
}
