#include <atomic>
#include <cstring>
#include <string>
#include <windows.h>
// Needs the types of the system's header.
#include <psapi.h>

#include "tests/support/AllocationCount.h"

// Counts what the program and the libraries in its folder, the C++ library among them, allocate by the C
// library: in the table of what each imports, its functions give way to ones that count.

namespace {

std::atomic<int> allocations{0};

// The C library's own function, whatever the tables say.
template <class Function>
Function* Own(const char* name) {
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"msvcrt.dll"), name)));
}

const auto ownMalloc = Own<void*(std::size_t)>("malloc");
const auto ownCalloc = Own<void*(std::size_t, std::size_t)>("calloc");
const auto ownRealloc = Own<void*(void*, std::size_t)>("realloc");
const auto ownAlignedMalloc = Own<void*(std::size_t, std::size_t)>("_aligned_malloc");
const auto ownStrdup = Own<char*(const char*)>("_strdup");

void* CountedMalloc(std::size_t size) {
    ++allocations;
    return ownMalloc(size);
}

void* CountedCalloc(std::size_t count, std::size_t size) {
    ++allocations;
    return ownCalloc(count, size);
}

void* CountedRealloc(void* memory, std::size_t size) {
    ++allocations;
    return ownRealloc(memory, size);
}

void* CountedAlignedMalloc(std::size_t size, std::size_t alignment) {
    ++allocations;
    return ownAlignedMalloc(size, alignment);
}

char* CountedStrdup(const char* text) {
    ++allocations;
    return ownStrdup(text);
}

struct Counted {
    const char* name;
    void* function;
};

const Counted kCounted[] = {
    {"malloc", reinterpret_cast<void*>(&CountedMalloc)},
    {"calloc", reinterpret_cast<void*>(&CountedCalloc)},
    {"realloc", reinterpret_cast<void*>(&CountedRealloc)},
    {"_aligned_malloc", reinterpret_cast<void*>(&CountedAlignedMalloc)},
    {"_strdup", reinterpret_cast<void*>(&CountedStrdup)},
    {"strdup", reinterpret_cast<void*>(&CountedStrdup)},
};

void Replace(void** import, void* function) {
    DWORD protection = 0;
    VirtualProtect(import, sizeof(*import), PAGE_READWRITE, &protection);
    *import = function;
    VirtualProtect(import, sizeof(*import), protection, &protection);
}

void CountImportsOf(HMODULE module) {
    const auto base = reinterpret_cast<unsigned char*>(module);
    const auto at = [base](DWORD offset) { return base + offset; };
    const auto dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(at(static_cast<DWORD>(dos->e_lfanew)));
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (directory.VirtualAddress == 0)
        return;
    auto library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(directory.VirtualAddress));
    for (; library->Name != 0; ++library) {
        if (_stricmp(reinterpret_cast<const char*>(at(library->Name)), "msvcrt.dll") != 0)
            continue;
        auto name = reinterpret_cast<const IMAGE_THUNK_DATA*>(at(library->OriginalFirstThunk));
        auto import = reinterpret_cast<void**>(at(library->FirstThunk));
        for (; name->u1.AddressOfData != 0; ++name, ++import) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto byName =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(at(static_cast<DWORD>(name->u1.AddressOfData)));
            for (const Counted& counted : kCounted) {
                if (std::strcmp(reinterpret_cast<const char*>(byName->Name), counted.name) == 0)
                    Replace(import, counted.function);
            }
        }
    }
}

std::wstring FolderOf(HMODULE module) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(module, path, MAX_PATH);
    const std::wstring file = path;
    return file.substr(0, file.rfind(L'\\') + 1);
}

// Before any test, and after the libraries were loaded.
const bool isCounting = [] {
    HMODULE modules[256];
    DWORD size = 0;
    if (!K32EnumProcessModules(GetCurrentProcess(), modules, sizeof(modules), &size))
        return false;
    const std::wstring own = FolderOf(nullptr);
    for (DWORD i = 0; i < size / sizeof(HMODULE) && i < 256; ++i) {
        if (FolderOf(modules[i]) == own)
            CountImportsOf(modules[i]);
    }
    return true;
}();

}  // namespace

namespace korvane::test {

int AllocationCount() {
    return allocations;
}

bool CountsMalloc() {
    return isCounting;
}

}  // namespace korvane::test
