#include "tests/support/Scene.h"

#include <cstring>
#include <fstream>
#include <random>
#include <stdexcept>

#include "platform/SharedMemory.h"
#include "platform/Simulation.h"

#include "tests/support/Share.h"
#include "tools/hostfile/HostFolder.h"

namespace korvane::test {

namespace fs = std::filesystem;

namespace {

fs::path MakeScratchFolder() {
    std::random_device random;
    for (;;) {
        const fs::path folder = fs::temp_directory_path() / ("korvane-test-" + std::to_string(random()));
        if (fs::create_directory(folder))
            return folder;
    }
}

constexpr char kResource[] = "NandFlash/Application/Resource";

}  // namespace

Scene::Scene(int width, int height) : root_(MakeScratchFolder()) {
    fs::create_directories(ImageFolder());
    ShareFolder(fs::path(KORVANE_TEST_DEVICE_DIR) / kResource / "Font", root_ / kResource / "Font");
    SetDeviceRoot(root_.u8string());

    SYSTEMTIME time = {};
    time.wYear = 2024;
    time.wMonth = 3;
    time.wDay = 15;
    time.wHour = 10;
    time.wMinute = 5;
    UseManualClock(10000, time);
    if (!CLQScreen::GetInstance()->Open("memory", width, height, L"Test bench"))
        throw std::runtime_error("the memory display does not open");
    Pump();
    CLQScreen::GetInstance()->ResetCounters();
}

Scene::~Scene() {
    CLQScreen::GetInstance()->Close();
    UseSystemClock();
    SetDeviceRoot(root_.u8string());
    RemoveSharedMemory();
    // A test without a scene may be the first one that needs a font.
    SetDeviceRoot({});
    tools::RemoveHostFolder(root_);
}

void Scene::Press(int x, int y) {
    Post(WM_LBUTTONDOWN, x, y);
}

void Scene::Move(int x, int y) {
    Post(WM_MOUSEMOVE, x, y);
}

void Scene::Release(int x, int y) {
    Post(WM_LBUTTONUP, x, y);
}

void Scene::Key(int virtualKey) {
    PostInput(CLQScreen::GetInstance()->GetHWND(), WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 0);
    Pump();
    PostInput(CLQScreen::GetInstance()->GetHWND(), WM_KEYUP, static_cast<WPARAM>(virtualKey), 0);
    Pump();
}

void Scene::Post(unsigned message, int x, int y) {
    PostInput(CLQScreen::GetInstance()->GetHWND(), message, 0, MAKELPARAM(x, y));
    Pump();
}

void Scene::Pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

void Scene::Advance(unsigned ms) {
    Pump();
    while (ms > 0) {
        unsigned due = 0;
        const unsigned step = NextTimerDue(due) && due < ms ? due : ms;
        AdvanceClock(step);
        ms -= step;
        Pump();
    }
}

fs::path Scene::ImageFolder() const {
    return root_ / kResource / "Image";
}

std::uint32_t Scene::PixelAt(int x, int y) const {
    CLQSurface* surface = CLQScreen::GetInstance()->GetScreenSurfHandle().GetSurface();
    const auto* row = static_cast<const unsigned char*>(surface->GetPixels()) +
                      static_cast<std::ptrdiff_t>(y) * surface->GetPitch();
    std::uint32_t pixel;
    std::memcpy(&pixel, row + static_cast<std::ptrdiff_t>(x) * 4, sizeof(pixel));
    return pixel;
}

std::vector<std::uint32_t> Scene::Pixels() const {
    return PixelsOf(CLQScreen::GetInstance()->GetScreenSurfHandle());
}

void Scene::FillWithGarbage() {
    CLQSurface* surface = CLQScreen::GetInstance()->GetScreenSurfHandle().GetSurface();
    std::uint32_t state = 12345;
    for (int y = 0; y < surface->GetHeight(); ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(static_cast<unsigned char*>(surface->GetPixels()) +
                                                     static_cast<std::ptrdiff_t>(y) * surface->GetPitch());
        for (int x = 0; x < surface->GetWidth(); ++x) {
            state = state * 1664525U + 1013904223U;
            row[x] = state | 0xFF000000U;
        }
    }
    surface->Touch();
}

std::vector<std::uint32_t> PixelsOf(CLQSurfHandle handle) {
    CLQSurface* surface = handle.GetSurface();
    if (!surface)
        return {};
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < surface->GetHeight(); ++y) {
        const auto* row =
            reinterpret_cast<const std::uint32_t*>(static_cast<const unsigned char*>(surface->GetPixels()) +
                                                   static_cast<std::ptrdiff_t>(y) * surface->GetPitch());
        pixels.insert(pixels.end(), row, row + surface->GetWidth());
    }
    return pixels;
}

void WriteImage(const fs::path& file, CLQSurfHandle& surface) {
    std::vector<unsigned char> bytes(static_cast<std::size_t>(surface.CalcStoreMemSize()));
    if (surface.SaveSurface(bytes.data(), static_cast<int>(bytes.size())) != eError_None)
        throw std::runtime_error("the surface cannot be stored");
    std::ofstream stream(file, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace korvane::test
