#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "title/TitleDialog.h"

#include "tests/support/Scene.h"
#include "tests/title/bench/MainWindow.h"
#include "tests/title/bench/TitleLayout.h"

namespace korvane::test {

enum class TestService {
    Present,        ///< the real service, with a record of zeros
    Missing,        ///< no library at all
    WithoutRecord,  ///< a service whose LQ_GetSysInfo returns null
};

/// A head unit with a title strip over a black window: the test's own small layouts, images of one colour
/// each, a service whose record the test writes, and a main application that notes what it gets. The strip is
/// made by `Start`, so that a test can change the device's files before.
class TestStrip : public ::testing::Test {
  protected:
    explicit TestStrip(TestService service = TestService::Present);
    ~TestStrip() override;

    /// Makes the dialog, on a window of the screen's size, and initialises it.
    void Start();

    /// Compiles a layout into the layout folder.
    void WriteLayout(const std::string& name, const std::string& text);
    void WriteTitleLayout(const TitleLayout& layout) { WriteLayout("GpTitle.bin", layout.Text()); }
    void RemoveLayout(const std::string& name);
    /// Writes a file of the device; the path counts from the device root, with slashes.
    void WriteDeviceFile(const std::string& path, const std::string& bytes);
    /// Loads a language table with these lines as its texts.
    void LoadTexts(const std::string& lines);

    /// Sets a field of the record as any program does, through the service, which tells the strip.
    void Set(const wchar_t* field, int value);
    /// The live record, to be written without telling the strip; not with a service that has none.
    _LQSysInfo& Record() { return *record_; }
    /// Message 1191, as the service sends it.
    void Notify(int item);

    /// A control of the strip; null when there is none of that name and class.
    template <class Ctrl = CLQBaseCtrl>
    Ctrl* Find(const wchar_t* name) {
        return dynamic_cast<Ctrl*>(FindIn(dialog->GetGpTitle(), name));
    }
    static CLQBaseCtrl* FindIn(CLQGroupCtrl* group, const wchar_t* name);

    /// Name of the image that is seen at the top-left corner of a control; empty for the black window.
    std::string ImageSeenAt(CLQBaseCtrl* ctrl);
    std::string ImageSeenAt(const wchar_t* name) { return ImageSeenAt(Find(name)); }
    /// What is seen in a control's rectangle.
    std::vector<std::uint32_t> PixelsOfCtrl(CLQBaseCtrl& ctrl);
    /// Touches the middle of a control.
    void Click(CLQBaseCtrl* ctrl);

    Scene scene;
    MainWindow mainWindow;
    CLQWindow background;
    std::unique_ptr<CLQTitleDialog> dialog;

  private:
    CLQShareMemLink link_;
    _LQSysInfo* record_ = nullptr;
};

/// The colour of all pixels of the test's image of that name, 0xAARRGGBB.
std::uint32_t ColorOfImage(const std::string& name);

}  // namespace korvane::test
