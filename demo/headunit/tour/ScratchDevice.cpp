#include "demo/headunit/tour/ScratchDevice.h"

#include <random>
#include <string>
#include <system_error>
#include <vector>

#include "platform/SharedMemory.h"
#include "platform/Simulation.h"

#include "tools/hostfile/HostFolder.h"

namespace korvane::demo {

namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kSharedFolders[] = {L"\\NandFlash\\Application\\Bin",
                                             L"\\NandFlash\\Application\\Resource", L"\\USB"};
constexpr const wchar_t* kFactorySettings[] = {L"\\NandFlash\\Application\\Profile\\LQ_SysSettings.ini",
                                               L"\\NandFlash\\Application\\Profile\\LQ_ShortcutConfig.ini"};

fs::path MakeFolder() {
    std::random_device random;
    std::error_code error;
    const fs::path parent = fs::temp_directory_path(error);
    for (int attempt = 0; !error && attempt < 16; ++attempt) {
        fs::path folder = parent / ("korvane-tour-" + std::to_string(random()));
        if (fs::create_directory(folder, error))
            return folder;
    }
    return {};
}

/// Where a path of the present device lies on the host.
fs::path HostPath(const wchar_t* devicePath) {
    return fs::absolute(fs::u8path(ToHostPath(devicePath)));
}

/// A link where the file system has links, else a copy. A medium that is plugged in is on every device.
void Share(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (from == to || !fs::exists(from, error))
        return;
    fs::create_directories(to.parent_path(), error);
    fs::create_directory_symlink(from, to, error);
    if (error)
        fs::copy(from, to, fs::copy_options::recursive, error);
}

void Copy(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::create_directories(to.parent_path(), error);
    fs::copy_file(from, to, error);
}

}  // namespace

ScratchDevice::~ScratchDevice() {
    if (root_.empty())
        return;
    RemoveSharedMemory();
    SetDeviceRoot(present_);
    tools::RemoveHostFolder(root_);
}

bool ScratchDevice::Enter() {
    root_ = MakeFolder();
    if (root_.empty())
        return false;
    std::vector<fs::path> folders;
    for (const wchar_t* const folder : kSharedFolders)
        folders.push_back(HostPath(folder));
    std::vector<fs::path> settings;
    for (const wchar_t* const file : kFactorySettings)
        settings.push_back(HostPath(file));

    present_ = DeviceRoot();
    SetDeviceRoot(root_.u8string());
    for (std::size_t i = 0; i < folders.size(); ++i)
        Share(folders[i], HostPath(kSharedFolders[i]));
    for (std::size_t i = 0; i < settings.size(); ++i)
        Copy(settings[i], HostPath(kFactorySettings[i]));
    return true;
}

}  // namespace korvane::demo
