#include "platform/windows/display/OwnConsole.h"

#include <cstdio>
#include <io.h>

#include "platform/windows/System.h"

namespace korvane {
namespace {

// The numbers of the console's handles may be those of other files once it is left.
void LetGo(std::FILE* stream, const char* mode) {
    if (_isatty(_fileno(stream)) && !std::freopen("NUL", mode, stream))
        std::fclose(stream);
}

}  // namespace

void LeaveOwnConsole() {
    DWORD processes[2];
    if (GetConsoleProcessList(processes, 2) != 1)
        return;
    LetGo(stdin, "r");
    LetGo(stdout, "w");
    LetGo(stderr, "w");
    FreeConsole();
}

}  // namespace korvane
