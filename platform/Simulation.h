#pragma once

#include <functional>
#include <string>

#include "platform/Export.h"
#include "platform/coredll.h"

/// What exists only off the device: a device root folder on the host, a clock that stands still until it is
/// moved, and input without a touch panel. On a device these do nothing and return false or nothing.
namespace korvane {

/// The host folder in which the paths of the device lie, as UTF-8. Unless set, the environment variable
/// KORVANE_DEVICE_ROOT, else the folder that the build prepares: on Windows `device` beside this library, and
/// without that one the system resolves the paths itself, and the root is empty. An empty folder goes back to
/// that.
KORVANE_API void SetDeviceRoot(const std::string& utf8Folder);
KORVANE_API std::string DeviceRoot();

/// The host path, in UTF-8, of a path of the device: separators of either kind, with or without a leading
/// one; ".." never climbs above the root. Where the host tells cases apart, each component names the host
/// entry of exactly that name, else the first, in byte order, that differs only in case. Components that do
/// not exist are kept as they are given. Empty for null and for an empty path.
KORVANE_API std::string ToHostPath(const wchar_t* devicePath);

/// Plugs a medium in, for this process: a host folder, in UTF-8, takes the place of the folder of that name
/// in the device's root, so that L"USB" puts it at "\USB". The name is matched without regard to case; a
/// listing of the root does not show it. An empty host folder pulls the medium out again. A host folder that
/// does not exist, or vanishes, is a medium that was pulled out.
KORVANE_API void PlugMedium(const std::wstring& name, const std::string& utf8Folder);

/// Stops the clock at the given tick and local time. From here on GetTickCount, Sleep, timers, message times
/// and GetLocalTime follow it; running timers keep what they had left to run. Fields of `localTime` beyond
/// their range carry over as in arithmetic; its day of the week is ignored.
KORVANE_API void UseManualClock(unsigned startTick, const SYSTEMTIME& localTime);
KORVANE_API void UseSystemClock();
KORVANE_API bool IsManualClock();

/// Lets `ms` milliseconds pass on the manual clock. Dispatches nothing: timers that fall due wait for the
/// next retrieval. Without a manual clock it does nothing.
KORVANE_API void AdvanceClock(unsigned ms);

/// How long from now until the earliest timer of the calling thread falls due, 0 when one is due already.
/// False when the thread has none.
KORVANE_API bool NextTimerDue(unsigned& msFromNow);

/// Called by the calling thread's GetMessageW when it would wait under the manual clock. The handler moves
/// the clock on or posts something and returns true to look again; false says that nothing more will come. An
/// empty function removes it.
///
/// A wait under the manual clock that nothing could end (the handler returned false or is itself waiting, or
/// there is no handler, no display, no other thread and no other process) ends as if WM_QUIT had been posted
/// with exit code 0. A process counts when it has found a window of this one with FindWindowW, or has posted
/// or sent to it, and still runs; on Windows, where that cannot be told, none counts.
KORVANE_API void SetIdleHandler(std::function<bool()> handler);

/// Appends an input message to the queue of the window's thread, behind all posted ones. A WM_MOUSEMOVE right
/// behind a waiting one of the same window takes its place. Any thread may call it. False for a dead window
/// or a full queue. On Windows under the system's clock it is posted like any message.
KORVANE_API bool PostInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The same with a time stamp of its own, which Windows gives messages itself under its own clock.
KORVANE_API bool PostInputAt(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time);

/// PostMessageW with a time stamp of its own, with the same exception.
KORVANE_API bool PostAt(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD time);

}  // namespace korvane
