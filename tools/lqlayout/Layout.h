#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "engine/core/Types.h"
#include "engine/widgets/layout/MemBlob.h"

#include "tools/lqlayout/Findings.h"
#include "tools/lqlayout/LayoutText.h"

namespace korvane::tools {

/// A control of a layout.
struct LayoutCtrl {
    int record = 0;
    int kind = 0;
    bool isKnown = true;  ///< of a kind that the engine has
    std::wstring name;
    /// In the coordinates of the window.
    _LQRect place;
    /// Shown together with all groups around it.
    bool isSeen = true;
    /// Null in a compiled layout.
    const TextSection* section = nullptr;
};

/// An element of a button.
struct LayoutElement {
    std::wstring prefix;  ///< of its keys
    bool isText = false;
    int width = 0;  ///< of the area that it is drawn in
    int height = 0;
};

/// A layout as it stands in a file: its controls with their properties and, for a text, their lines.
class Layout {
  public:
    /// Reads a text or a compiled layout. False, with errors among the findings, when it is not a whole one.
    bool Read(const std::filesystem::path& file, Findings& findings);

    CLQMemBlob& Records() { return records_; }
    int RecordCount() const { return records_.GetRecordCount(); }
    /// Null for a compiled layout.
    LayoutText* Text() { return text_.get(); }
    /// Depth first, the outermost control in front.
    const std::vector<LayoutCtrl>& Ctrls() const { return ctrls_; }
    std::vector<LayoutElement> ElementsOf(const LayoutCtrl& ctrl) const;

    int Number(const LayoutCtrl& ctrl, const std::wstring& key, int fallback) const;
    /// Empty when the control does not have it.
    std::wstring TextOf(const LayoutCtrl& ctrl, const std::wstring& key) const;

    /// Where a key of the control stands, or where the control does; 0 in a compiled layout.
    int LineOf(const LayoutCtrl& ctrl, const std::wstring& key) const;
    int LineOf(const LayoutCtrl& ctrl) const;
    /// `button "BtnBack"`, and in a compiled layout also which record it is.
    std::string Describe(const LayoutCtrl& ctrl) const;

  private:
    bool ReadText(const std::string& bytes, Findings& findings);
    bool ReadRecords(const std::vector<unsigned char>& bytes, Findings& findings);
    void AddCtrl(int record, const LayoutCtrl* group);

    CLQMemBlob records_;
    std::unique_ptr<LayoutText> text_;
    std::vector<const TextSection*> sections_;  ///< by the numbers of records; empty for a compiled layout
    std::vector<LayoutCtrl> ctrls_;
};

/// True for a file that is, or claims to be, a compiled layout.
bool IsCompiledLayout(const std::filesystem::path& file, const std::vector<unsigned char>& bytes);

}  // namespace korvane::tools
