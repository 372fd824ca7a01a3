#include "platform/posix/files/Wildcard.h"

#include "platform/CaseFold.h"
#include "platform/Unicode.h"

namespace korvane {

bool FitsWildcard(std::wstring_view name, std::wstring_view pattern) {
    if (pattern == L"*.*")
        return true;
    std::size_t n = 0;
    std::size_t p = 0;
    // Where to take up again when what follows the last star does not fit: the star swallows one more.
    std::size_t afterStar = std::wstring_view::npos;
    std::size_t swallowed = 0;
    while (n < name.size()) {
        std::size_t nextN = n;
        std::size_t nextP = p;
        const char32_t letter = NextCodePoint(name, nextN);
        const char32_t wanted = p < pattern.size() ? NextCodePoint(pattern, nextP) : 0;
        if (wanted == U'*') {
            p = nextP;
            afterStar = p;
            swallowed = n;
        } else if (wanted == U'?' || (wanted != 0 && FoldCase(wanted) == FoldCase(letter))) {
            n = nextN;
            p = nextP;
        } else if (afterStar != std::wstring_view::npos) {
            NextCodePoint(name, swallowed);
            n = swallowed;
            p = afterStar;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*')
        ++p;
    return p == pattern.size();
}

}  // namespace korvane
