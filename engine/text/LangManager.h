#pragma once

#include <memory>
#include <string>

#include "platform/Export.h"

/// The texts of the user interface in the current language.
class KORVANE_API CLQLangManager {
  public:
    static CLQLangManager* GetInstance();

    /// Text of an identifier; empty when the current table has none.
    std::wstring GetString(int id);
    /// Text of a key such as "settings_shortcut_menu_tuner", compared without regard to case; the key itself
    /// when the table has none, empty for null.
    std::wstring GetString(const wchar_t* key);

    /// Loads a language table (UTF-8 text, see docs/file-formats.md) and calls `ChangeLanguage` on every
    /// window of the screen, the topmost first. A name without a folder is looked for in the language folder.
    /// Returns false, and keeps the current texts, when the file is missing or not a language table.
    bool LoadLanguage(const wchar_t* file);

    /// The day-half designators of the current language: "AM" and "PM" unless its table names others.
    std::wstring GetMorning() const;
    std::wstring GetAfternoon() const;

  private:
    CLQLangManager();
    ~CLQLangManager();
    CLQLangManager(const CLQLangManager&) = delete;
    CLQLangManager& operator=(const CLQLangManager&) = delete;

    struct Impl;
    std::unique_ptr<Impl> m_pImpl;
};
