#include "engine/text/LangManager.h"

#include <optional>
#include <utility>
#include <vector>

#include "engine/core/Life.h"
#include "engine/system/System.h"
#include "engine/text/LanguageTable.h"
#include "engine/window/Screen.h"
#include "engine/window/Window.h"
#include "platform/Files.h"

namespace {

/// A window's `ChangeLanguage` may destroy, create and restack windows. Those that come later have found the
/// new texts already.
void ChangeLanguageOfWindows() {
    CLQScreen& screen = *CLQScreen::GetInstance();
    std::vector<std::pair<CLQWindow*, korvane::LifeWatch>> windows;
    for (int index = screen.GetWindowCount() - 1; index >= 0; --index) {
        if (CLQWindow* window = screen.GetWindow(index))
            windows.emplace_back(window, window->WatchLife());
    }
    for (const auto& [window, life] : windows) {
        if (life.IsAlive())
            window->ChangeLanguage();
    }
}

}  // namespace

struct CLQLangManager::Impl {
    korvane::LanguageTable table;
};

CLQLangManager::CLQLangManager() : m_pImpl(std::make_unique<Impl>()) {}

CLQLangManager::~CLQLangManager() = default;

CLQLangManager* CLQLangManager::GetInstance() {
    // Never destroyed: windows that end with the program may still ask for texts.
    static CLQLangManager* const manager = new CLQLangManager;
    return manager;
}

std::wstring CLQLangManager::GetString(int id) {
    const std::wstring* text = m_pImpl->table.Find(id);
    return text ? *text : std::wstring();
}

std::wstring CLQLangManager::GetString(const wchar_t* key) {
    if (!key)
        return std::wstring();
    const std::wstring* text = m_pImpl->table.Find(std::wstring_view(key));
    return text ? *text : std::wstring(key);
}

bool CLQLangManager::LoadLanguage(const wchar_t* file) {
    if (!file)
        return false;
    const std::wstring path = korvane::ResourcePath(korvane::ResourceKind::Language, file);
    std::vector<unsigned char> bytes;
    if (!korvane::ReadWholeFile(path.c_str(), korvane::LanguageTable::kMaxFileBytes, bytes))
        return false;
    std::optional<korvane::LanguageTable> table =
        korvane::LanguageTable::Parse(std::string(bytes.begin(), bytes.end()));
    if (!table)
        return false;
    m_pImpl->table = std::move(*table);
    ChangeLanguageOfWindows();
    return true;
}

std::wstring CLQLangManager::GetMorning() const {
    return m_pImpl->table.Morning();
}

std::wstring CLQLangManager::GetAfternoon() const {
    return m_pImpl->table.Afternoon();
}
