#include "tests/support/ChildProcess.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "platform/Unicode.h"
#include "platform/windows/Handle.h"

// clang-format off: this header needs <windows.h> before it.
#include <tlhelp32.h>
// clang-format on

namespace korvane::test {

namespace {

/// The exit code of a process that was killed; none ends with it by itself.
constexpr UINT kKilledCode = 0xE0000009;

struct Pipe {
    Handle readEnd;
    Handle writeEnd;
};

Pipe MakePipe() {
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (!CreatePipe(&readEnd, &writeEnd, nullptr, 0))
        throw std::runtime_error("no pipes");
    return {Handle(readEnd), Handle(writeEnd)};
}

/// Appends what waits in the pipe. False when that is nothing.
bool ReadInto(std::string& text, const Handle& end) {
    char block[4096];
    DWORD count = 0;
    if (!PeekNamedPipe(end.Get(), nullptr, 0, nullptr, &count, nullptr) || count == 0 ||
        !ReadFile(end.Get(), block, std::min<DWORD>(count, sizeof(block)), &count, nullptr))
        return false;
    std::copy_if(block, block + count, std::back_inserter(text), [](char letter) { return letter != '\r'; });
    return true;
}

HANDLE Inherited(const Handle& handle) {
    SetHandleInformation(handle.Get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    return handle.Get();
}

/// One word as the C library of the program takes the command line apart again.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t letter : word) {
        // Before a quotation mark each backslash counts for half of one.
        if (letter == L'"')
            quoted.append(backslashes + 1, L'\\');
        backslashes = letter == L'\\' ? backslashes + 1 : 0;
        quoted += letter;
    }
    quoted.append(backslashes, L'\\');
    return quoted + L'"';
}

/// Once in some thousand times Wine's loader ends before the program begins, and this is what it says then.
bool Start(const std::wstring& program, std::wstring& line, STARTUPINFOW& start, PROCESS_INFORMATION& made) {
    constexpr int kTries = 3;
    bool starts = false;
    SetLastError(ERROR_INTERNAL_ERROR);
    for (int i = 0; i < kTries && !starts && GetLastError() == ERROR_INTERNAL_ERROR; ++i) {
        starts = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                                nullptr, nullptr, &start, &made) != 0;
    }
    return starts;
}

/// Calls `change` with each thread of the process.
template <class Change>
void ForEachThread(DWORD process, const Change& change) {
    const Handle threads(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL found = Thread32First(threads.Get(), &entry); found;
         found = Thread32Next(threads.Get(), &entry)) {
        const Handle thread(entry.th32OwnerProcessID == process
                                ? OpenThread(THREAD_SUSPEND_RESUME, FALSE, entry.th32ThreadID)
                                : nullptr);
        if (thread.IsOpen())
            change(thread.Get());
    }
}

}  // namespace

struct ChildProcess::State {
    Handle process;
    DWORD id = 0;
    Handle input;
    Handle output;
    Handle errors;
};

ChildProcess::ChildProcess(const std::vector<std::string>& command) : state_(new State) {
    Pipe in = MakePipe();
    Pipe out = MakePipe();
    Pipe err = MakePipe();
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = Inherited(in.readEnd);
    start.hStdOutput = Inherited(out.writeEnd);
    start.hStdError = Inherited(err.writeEnd);
    std::wstring line;
    for (const std::string& word : command)
        line += (line.empty() ? L"" : L" ") + Quoted(FromUtf8(word));
    PROCESS_INFORMATION made = {};
    if (!Start(FromUtf8(command.front()), line, start, made))
        throw std::runtime_error(command.front() + " does not start: " + std::to_string(GetLastError()));
    CloseHandle(made.hThread);
    state_->process = Handle(made.hProcess);
    state_->id = made.dwProcessId;
    state_->input = std::move(in.writeEnd);
    state_->output = std::move(out.readEnd);
    state_->errors = std::move(err.readEnd);
}

ChildProcess::~ChildProcess() {
    Kill();
}

void ChildProcess::Write(const std::string& text) {
    DWORD written = 0;
    if (state_->input.IsOpen() &&
        !WriteFile(state_->input.Get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr))
        CloseInput();
}

void ChildProcess::CloseInput() {
    state_->input = Handle();
}

// A pipe cannot be waited for. Its end says nothing either: what the system starts with the process may have
// inherited it.
bool ChildProcess::ReadMore(std::string& output, std::string& errors, int timeoutMs) {
    constexpr DWORD kPauseMs = 2;
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(std::max(timeoutMs, 0));
    bool isOver = timeoutMs <= 0;
    DWORD pauseMs = 0;
    while (!isOver) {
        // Before the pipes are looked at: the process has written all of it when it ends.
        isOver =
            WaitForSingleObject(state_->process.Get(), pauseMs) == WAIT_OBJECT_0 || GetTickCount64() >= end;
        const bool hasOutput = ReadInto(output, state_->output);
        const bool hasErrors = ReadInto(errors, state_->errors);
        if (hasOutput || hasErrors)
            return true;
        pauseMs = kPauseMs;
    }
    return false;
}

void ChildProcess::Kill() {
    TerminateProcess(state_->process.Get(), kKilledCode);
    Status();
}

void ChildProcess::Freeze() {
    ForEachThread(state_->id, [](HANDLE thread) { SuspendThread(thread); });
}

void ChildProcess::Thaw() {
    ForEachThread(state_->id, [](HANDLE thread) { ResumeThread(thread); });
}

int ChildProcess::Status() {
    WaitForSingleObject(state_->process.Get(), INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(state_->process.Get(), &code);
    return code == kKilledCode ? kKilled : static_cast<int>(code);
}

std::string ThisProgram() {
    constexpr DWORD kLongestPath = 32768;
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPath));
    return ToUtf8(path);
}

void KillThisProcess() {
    TerminateProcess(GetCurrentProcess(), kKilledCode);
    std::abort();
}

}  // namespace korvane::test
