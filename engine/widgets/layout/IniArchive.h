#pragma once

#include <vector>

#include "engine/widgets/layout/LayoutArchive.h"
#include "platform/Export.h"

class CLQIniReadWrite;

namespace korvane {

/// One section of a text layout.
class KORVANE_API IniArchive : public LayoutArchive {
  public:
    IniArchive(CLQIniReadWrite& ini, const wchar_t* section, bool loading);

    /// The kind of the section's control; -1 when there is no such section or its kind is not one.
    int Kind();
    void WriteKind(int kind);
    /// Section names of the controls in a group.
    std::vector<std::wstring> Children();
    void WriteChildren(const std::vector<std::wstring>& sections);

  protected:
    bool ReadNumber(const std::wstring& key, int& value) override;
    bool ReadText(const std::wstring& key, std::wstring& value) override;
    bool ReadColor(const std::wstring& key, _LQColor& value) override;
    bool WriteNumber(const std::wstring& key, int value) override;
    bool WriteText(const std::wstring& key, const std::wstring& value) override;
    bool WriteColor(const std::wstring& key, const _LQColor& value) override;

  private:
    /// False when the section does not have the key.
    bool Read(const std::wstring& key, std::wstring& value);

    CLQIniReadWrite& ini_;
    std::wstring section_;
};

/// Texts in a text layout: a character that cannot stand in a line, and a % before two hexadecimal digits, is
/// written as % and the two hexadecimal digits of its code.
std::wstring EscapeLayoutText(const std::wstring& text);
std::wstring UnescapeLayoutText(const std::wstring& written);

}  // namespace korvane
