#include "tests/support/ChildProcess.h"

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <stdexcept>
#include <thread>
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

/// What the process has printed and nobody has taken yet. Threads of their own read it, since a pipe cannot
/// be waited for.
struct Printed {
    std::mutex mutex;
    std::condition_variable more;
    std::string output;
    std::string errors;
    int openStreams = 2;
};

void ReadAll(const Handle& end, Printed& printed, std::string& text) {
    char block[4096];
    DWORD count = 0;
    while (ReadFile(end.Get(), block, sizeof(block), &count, nullptr)) {
        const std::lock_guard<std::mutex> lock(printed.mutex);
        for (DWORD i = 0; i < count; ++i) {
            if (block[i] != '\r')
                text += block[i];
        }
        printed.more.notify_all();
    }
    const std::lock_guard<std::mutex> lock(printed.mutex);
    --printed.openStreams;
    printed.more.notify_all();
}

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
    // Shared with the readers, which another process may hold up that has inherited the streams.
    std::shared_ptr<Printed> printed = std::make_shared<Printed>();
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
    if (!CreateProcessW(FromUtf8(command.front()).c_str(), line.data(), nullptr, nullptr, TRUE,
                        CREATE_NO_WINDOW, nullptr, nullptr, &start, &made))
        throw std::runtime_error(command.front() + " does not start");
    CloseHandle(made.hThread);
    state_->process = Handle(made.hProcess);
    state_->id = made.dwProcessId;
    state_->input = std::move(in.writeEnd);
    const auto read = [printed = state_->printed](Handle end, std::string Printed::*text) {
        std::thread([printed, text, end = std::move(end)] {
            ReadAll(end, *printed, (*printed).*text);
        }).detach();
    };
    read(std::move(out.readEnd), &Printed::output);
    read(std::move(err.readEnd), &Printed::errors);
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

bool ChildProcess::ReadMore(std::string& output, std::string& errors, int timeoutMs) {
    Printed& printed = *state_->printed;
    std::unique_lock<std::mutex> lock(printed.mutex);
    const auto hasMore = [&printed] { return !printed.output.empty() || !printed.errors.empty(); };
    const auto isOver = [&printed, &hasMore] { return hasMore() || printed.openStreams == 0; };
    if (timeoutMs <= 0 || !printed.more.wait_for(lock, std::chrono::milliseconds(timeoutMs), isOver) ||
        !hasMore())
        return false;
    output += std::exchange(printed.output, {});
    errors += std::exchange(printed.errors, {});
    return true;
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
