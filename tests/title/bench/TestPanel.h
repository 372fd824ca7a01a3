#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/title/bench/TestStrip.h"

namespace korvane::test {

constexpr int kPanelButtons = 5;
using PanelIds = std::array<int, kPanelButtons>;

constexpr PanelIds kFixedIds = {0, 4, 17, 12, 18};

/// A strip with the pictures of all sources. The data directory is "\UserData" until a test says otherwise.
class TestPanel : public TestStrip {
  protected:
    explicit TestPanel(TestService service = TestService::Present);

    /// Starts the strip and has the application show the panel with its shadow.
    void StartShown();
    void ShowPanel();
    bool IsPanelShown();
    /// Ends the strip and starts it again, as after a restart.
    void Restart();

    /// Button 1 to 5; null when the layout lacks it.
    CLQButton* Button(int number);
    CLQButton* BackButton();
    /// Name of the picture that is seen on a button of the shown panel, without its suffix ".lqi"; empty for
    /// none.
    std::string PictureOn(int number);

    /// The user's choice, as it stands in the panel's settings.
    void StoreIds(const PanelIds& ids);
    /// The entries of the panel's settings as they are written; those that are missing read "none".
    std::array<std::string, kPanelButtons> StoredIds(const std::string& path = "UserData/ShortCut.ini");
    /// The factory's choice: the text under "DEFUALTID".
    void WriteFactoryIds(const std::string& list);

    /// The sources that the main application was asked for since the last call.
    std::vector<int> TakeRequests();
    static std::vector<int> RequestsIn(const std::vector<MainWindow::Message>& messages);

    bool IsOnDevice(const std::string& path);
    /// What the buttons ask for when each is touched in turn, also those of absent sources.
    PanelIds ChosenIds();
};

}  // namespace korvane::test
