#pragma once

#include <cstddef>
#include <cstdint>
#include <cwchar>

#include "platform/Export.h"

// The names and widths of the Windows headers: LONG and DWORD have 32 bits on every machine, WPARAM and
// LPARAM hold a pointer.

#define WINAPI
#define CALLBACK
#define TRUE 1
#define FALSE 0

typedef int BOOL;
typedef std::uint8_t BYTE;
typedef std::uint16_t WORD;
typedef std::uint32_t DWORD;
typedef std::int32_t LONG;
typedef int INT;
typedef unsigned int UINT;
typedef wchar_t WCHAR;
typedef WORD ATOM;
typedef std::uintptr_t UINT_PTR;
typedef std::intptr_t INT_PTR;
typedef std::intptr_t LONG_PTR;
typedef std::uintptr_t ULONG_PTR;
typedef std::uintptr_t DWORD_PTR;
typedef std::uintptr_t WPARAM;
typedef std::intptr_t LPARAM;
typedef std::intptr_t LRESULT;
typedef void* LPVOID;
typedef WCHAR* LPWSTR;
typedef const WCHAR* LPCWSTR;

typedef void* HANDLE;
typedef struct HWND__* HWND;
typedef struct HMENU__* HMENU;
typedef struct HINSTANCE__* HINSTANCE;
typedef HINSTANCE HMODULE;
typedef struct HICON__* HICON;
typedef HICON HCURSOR;
typedef struct HBRUSH__* HBRUSH;

typedef INT_PTR (*FARPROC)();

typedef struct tagPOINT {
    LONG x;
    LONG y;
} POINT;

typedef struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT;

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))

constexpr DWORD INFINITE = 0xFFFFFFFF;
constexpr int MAX_PATH = 260;

constexpr WORD LOWORD(ULONG_PTR value) {
    return static_cast<WORD>(value & 0xFFFF);
}
constexpr WORD HIWORD(ULONG_PTR value) {
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}
constexpr LONG MAKELONG(LONG_PTR low, LONG_PTR high) {
    return static_cast<LONG>((static_cast<DWORD>(high & 0xFFFF) << 16) | static_cast<DWORD>(low & 0xFFFF));
}
constexpr LPARAM MAKELPARAM(LONG_PTR low, LONG_PTR high) {
    return static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high)));
}
constexpr WPARAM MAKEWPARAM(LONG_PTR low, LONG_PTR high) {
    return static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high)));
}

constexpr DWORD ERROR_SUCCESS = 0;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
constexpr DWORD ERROR_NO_MORE_FILES = 18;
constexpr DWORD ERROR_WRITE_FAULT = 29;
constexpr DWORD ERROR_GEN_FAILURE = 31;
constexpr DWORD ERROR_NOT_SUPPORTED = 50;
constexpr DWORD ERROR_INVALID_PARAMETER = 87;
constexpr DWORD ERROR_DISK_FULL = 112;
constexpr DWORD ERROR_MOD_NOT_FOUND = 126;
constexpr DWORD ERROR_PROC_NOT_FOUND = 127;
constexpr DWORD ERROR_DIR_NOT_EMPTY = 145;
constexpr DWORD ERROR_ALREADY_EXISTS = 183;
constexpr DWORD ERROR_FILENAME_EXCED_RANGE = 206;
constexpr DWORD ERROR_DIRECTORY = 267;
constexpr DWORD ERROR_MESSAGE_SYNC_ONLY = 1159;
constexpr DWORD ERROR_INVALID_WINDOW_HANDLE = 1400;
constexpr DWORD ERROR_CANNOT_FIND_WND_CLASS = 1407;
constexpr DWORD ERROR_CLASS_ALREADY_EXISTS = 1410;
constexpr DWORD ERROR_CLASS_DOES_NOT_EXIST = 1411;
constexpr DWORD ERROR_CLASS_HAS_WINDOWS = 1412;
constexpr DWORD ERROR_INVALID_INDEX = 1413;
constexpr DWORD ERROR_NO_SYSTEM_RESOURCES = 1450;
constexpr DWORD ERROR_TIMEOUT = 1460;
constexpr DWORD ERROR_NOT_ENOUGH_QUOTA = 1816;

extern "C" {

/// The calling thread's last error. Only failing calls set it.
KORVANE_API DWORD GetLastError();
KORVANE_API void SetLastError(DWORD error);
}
