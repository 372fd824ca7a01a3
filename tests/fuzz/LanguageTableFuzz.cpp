#include <cstdint>
#include <optional>
#include <string>

#include "engine/text/LanguageTable.h"
#include "platform/Unicode.h"

#include "tests/fuzz/Require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const std::optional<korvane::LanguageTable> table = korvane::LanguageTable::Parse(bytes);
    if (!table)
        return 0;
    Require(korvane::ToUtf8(korvane::FromUtf8(bytes)) == bytes, "a table is valid UTF-8");
    Require(!table->Morning().empty() && !table->Afternoon().empty(), "a day half has a name");
    Require(!table->Find(0) && !table->Find(-1), "identifiers start at 1");
    Require(!table->Find(L""), "a key is not empty");
    if (const std::wstring* text = table->Find(12))
        Require(text->size() <= size, "a text is no longer than its table");
    table->Find(L"settings_shortcut_menu_tuner");
    return 0;
}
