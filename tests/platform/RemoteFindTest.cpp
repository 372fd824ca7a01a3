#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "tests/platform/PeerProcess.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

std::wstring TitleOf(HWND window) {
    wchar_t title[256] = L"?";
    GetWindowTextW(window, title, 256);
    return title;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[256] = L"?";
    GetClassNameW(window, name, 256);
    return name;
}

BOOL CALLBACK AppendWindow(HWND window, LPARAM list) {
    if (ClassOf(window).compare(0, 8, L"Korvane.") == 0)
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

/// Those of these tests; a system has others.
std::vector<HWND> ListWindows() {
    std::vector<HWND> windows;
    EXPECT_TRUE(EnumWindows(&AppendWindow, reinterpret_cast<LPARAM>(&windows)));
    return windows;
}

TEST(WindowOfAnotherProcess, IsFoundByClassAndTitle) {
    PeerProcess peer;
    ASSERT_EQ(peer.Ask("window NavigRecive Main"), "ok");
    const HWND window = FindWindowW(L"NavigRecive", L"Main");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(FindWindowW(L"navigrecive", nullptr), window);
    EXPECT_EQ(FindWindowW(nullptr, L"Main"), window);
    EXPECT_EQ(FindWindowW(nullptr, L"MAIN"), window);
    EXPECT_EQ(FindWindowW(L"NavigRecive", L"Other"), nullptr);
    EXPECT_EQ(FindWindowW(L"Other", L"Main"), nullptr);
    EXPECT_EQ(FindWindowW(nullptr, L"Mai"), nullptr);
    EXPECT_TRUE(IsWindow(window));
}

TEST(WindowOfAnotherProcess, TellsItsClassAndTitle) {
    PeerProcess peer;
    peer.Ask("window KorvaneScreen Zażółć");
    const HWND window = FindWindowW(L"KorvaneScreen", nullptr);
    EXPECT_EQ(ClassOf(window), L"KorvaneScreen");
    EXPECT_EQ(TitleOf(window), L"Zażółć");
    wchar_t text[3];
    EXPECT_EQ(GetWindowTextW(window, text, 3), 2);
    EXPECT_STREQ(text, L"Za");
}

TEST(WindowOfAnotherProcess, IsFoundByEachNewTitle) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer before");
    const HWND window = FindWindowW(nullptr, L"before");
    peer.Ask("title 0 after");
    EXPECT_EQ(FindWindowW(nullptr, L"before"), nullptr);
    EXPECT_EQ(FindWindowW(nullptr, L"after"), window);
    EXPECT_EQ(TitleOf(window), L"after");
}

TEST(WindowOfAnotherProcess, IsGoneOnceItIsDestroyed) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer first");
    peer.Ask("window Korvane.Peer second");
    const HWND first = FindWindowW(nullptr, L"first");
    const HWND second = FindWindowW(nullptr, L"second");
    peer.Ask("destroy 0");
    EXPECT_EQ(FindWindowW(nullptr, L"first"), nullptr);
    EXPECT_FALSE(IsWindow(first));
    EXPECT_EQ(TitleOf(first), L"");
    EXPECT_TRUE(IsWindow(second));
    EXPECT_FALSE(PostMessageW(first, WM_APP, 0, 0));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
    EXPECT_EQ(SendMessageW(first, WM_APP, 0, 0), 0);
}

TEST(WindowOfAnotherProcess, KeepsItsHandle) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer one");
    const HWND window = FindWindowW(nullptr, L"one");
    peer.Ask("window Korvane.Peer two");
    EXPECT_EQ(FindWindowW(nullptr, L"one"), window);
    EXPECT_NE(FindWindowW(nullptr, L"two"), window);
    const std::vector<HWND> listed = ListWindows();
    EXPECT_EQ(std::count(listed.begin(), listed.end(), window), 1);
}

TEST(WindowOfAnotherProcess, IsFoundBeforeAnOlderOneOfThisProcess) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer same");
    TestWindow::Options options;
    options.title = L"same";
    const TestWindow own(options);
    EXPECT_EQ(FindWindowW(nullptr, L"same"), own.Handle());
    EXPECT_NE(FindWindowW(L"Korvane.Peer", L"same"), own.Handle());
    peer.Ask("window Korvane.Peer same");
    EXPECT_NE(FindWindowW(nullptr, L"same"), own.Handle());
    EXPECT_EQ(FindWindowW(L"Korvane.Test", L"same"), own.Handle());
}

TEST(WindowOfAnotherProcess, IsTheNewestOfSeveral) {
    PeerProcess older;
    PeerProcess newer;
    older.Ask("window Korvane.Peer same");
    newer.Ask("window Korvane.Peer same");
    const HWND second = FindWindowW(nullptr, L"same");
    newer.Ask("destroy 0");
    const HWND first = FindWindowW(nullptr, L"same");
    EXPECT_NE(first, second);
    EXPECT_TRUE(IsWindow(first));
    older.Ask("window Korvane.Peer same");
    EXPECT_NE(FindWindowW(nullptr, L"same"), first);
}

TEST(WindowOfAnotherProcess, IsNotFoundByTheAtomOfAClassOfThisOne) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &DefWindowProcW;
    windowClass.lpszClassName = L"Korvane.Unused";
    const auto atom = reinterpret_cast<LPCWSTR>(static_cast<UINT_PTR>(RegisterClassW(&windowClass)));
    PeerProcess peer;
    peer.Ask("window Korvane.Peer theirs");
    EXPECT_EQ(FindWindowW(atom, nullptr), nullptr);
    EXPECT_EQ(FindWindowW(reinterpret_cast<LPCWSTR>(UINT_PTR{1}), nullptr), nullptr);
    const HWND own =
        CreateWindowExW(0, atom, L"ours", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(FindWindowW(atom, nullptr), own);
    DestroyWindow(own);
}

TEST(WindowOfAnotherProcess, IsFoundBothWays) {
    TestWindow::Options options;
    options.title = L"home";
    const TestWindow own(options);
    PeerProcess peer;
    EXPECT_EQ(peer.Ask("find * home"), "Korvane.Test home");
    EXPECT_EQ(peer.Ask("find Korvane.Test *"), "Korvane.Test home");
    EXPECT_EQ(peer.Ask("find * away"), "none");
}

TEST(WindowOfAnotherProcess, CannotBeEndedOrTimedFromHere) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer theirs");
    const HWND window = FindWindowW(nullptr, L"theirs");
    EXPECT_FALSE(DestroyWindow(window));
    EXPECT_EQ(SetTimer(window, 1, 100, nullptr), 0u);
    EXPECT_TRUE(IsWindow(window));
}

TEST(EnumWindows, GivesTheTopLevelWindowsOfAllProcesses) {
    PeerProcess older;
    PeerProcess newer;
    older.Ask("window Korvane.Peer a");
    newer.Ask("window Korvane.Peer b");
    older.Ask("window Korvane.Peer c");
    TestWindow::Options options;
    options.title = L"own";
    const TestWindow own(options);
    options.title = L"child";
    options.parent = own.Handle();
    options.style = WS_CHILD;
    const TestWindow child(options);
    std::wstring titles;
    for (const HWND window : ListWindows())
        titles += TitleOf(window) + L' ';
    EXPECT_EQ(titles, L"own c b a ");
    EXPECT_EQ(newer.Ask("list"), "[Korvane.Test own][Korvane.Peer c][Korvane.Peer b][Korvane.Peer a]");
}

BOOL CALLBACK CountOne(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return FALSE;
}

TEST(EnumWindows, EndsWhenItsProcedureSaysSo) {
    const TestWindow first;
    const TestWindow second;
    int seen = 0;
    EXPECT_FALSE(EnumWindows(&CountOne, reinterpret_cast<LPARAM>(&seen)));
    EXPECT_EQ(seen, 1);
}

/// Two windows of which the older ends as soon as any window is listed, and how many of them were listed.
struct DoomedWindows {
    std::unique_ptr<TestWindow> older = std::make_unique<TestWindow>();
    std::unique_ptr<TestWindow> newer = std::make_unique<TestWindow>();
    int listed = 0;
};

BOOL CALLBACK CountAndDestroy(HWND window, LPARAM parameter) {
    auto& windows = *reinterpret_cast<DoomedWindows*>(parameter);
    if (ClassOf(window) == L"Korvane.Test")
        ++windows.listed;
    windows.older.reset();
    return TRUE;
}

TEST(EnumWindows, LeavesOutWhatItsProcedureDestroys) {
    DoomedWindows windows;
    EXPECT_TRUE(EnumWindows(&CountAndDestroy, reinterpret_cast<LPARAM>(&windows)));
    EXPECT_EQ(windows.listed, 1);
}

TEST(EnumWindows, DoesNotTakeAWindowOfThisProcessForAnothers) {
    std::atomic<bool> over{false};
    std::thread maker([&over] {
        for (int i = 0; i < 300; ++i)
            const TestWindow first;
        over = true;
    });
    std::size_t most = 0;
    while (!over)
        most = std::max(most, ListWindows().size());
    maker.join();
    EXPECT_LE(most, 1u);
    const TestWindow window;
    EXPECT_EQ(ListWindows(), std::vector<HWND>{window.Handle()});
}

TEST(EnumWindows, GivesManyWindows) {
    PeerProcess peer;
    peer.Ask("windows Korvane.Peer 500");
    EXPECT_EQ(ListWindows().size(), 500u);
    for (const wchar_t* title : {L"0", L"250", L"499"})
        EXPECT_EQ(TitleOf(FindWindowW(nullptr, title)), title);
}

}  // namespace
}  // namespace korvane
