#include "engine/draw/SurfManager.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "engine/draw/LqiFormat.h"
#include "engine/draw/SurfaceState.h"
#include "engine/system/System.h"
#include "platform/CaseFold.h"
#include "platform/Files.h"
#include "platform/Unicode.h"

namespace {

/// One name for all the ways to write a device path: case folded, backslashes only, none at the start, no
/// empty components, "." and ".." resolved.
std::wstring PathKey(const std::wstring& path) {
    std::vector<std::wstring> components(1);
    const auto endComponent = [&components] {
        const std::wstring& last = components.back();
        if (last == L"..")
            components.resize(components.size() > 2 ? components.size() - 2 : 0);
        else if (last.empty() || last == L".")
            components.pop_back();
        components.emplace_back();
    };
    std::size_t at = 0;
    while (at < path.size()) {
        if (path[at] == L'\\' || path[at] == L'/') {
            endComponent();
            ++at;
        } else {
            korvane::AppendCodePoint(components.back(), korvane::FoldCase(korvane::NextCodePoint(path, at)));
        }
    }
    endComponent();
    std::wstring key;
    for (const std::wstring& component : components) {
        if (!component.empty())
            key.append(key.empty() ? L"" : L"\\").append(component);
    }
    return key;
}

std::shared_ptr<CLQSurface> LoadSurface(const std::wstring& path) {
    std::vector<unsigned char> bytes;
    korvane::LqiImage image;
    if (!korvane::ReadWholeFile(path.c_str(), korvane::kLqiMaxSize, bytes) ||
        korvane::DecodeLqi(bytes.data(), bytes.size(), image) != eError_None)
        return nullptr;
    auto surface = std::make_shared<CLQSurface>();
    surface->State().Adopt(std::move(image));
    return surface;
}

}  // namespace

struct CLQSurfManager::Impl {
    /// Every file that some handle shares, and files that none shares any more until the next load drops
    /// them.
    std::map<std::wstring, std::weak_ptr<CLQSurface>> shared;

    void DropDead() {
        for (auto entry = shared.begin(); entry != shared.end();)
            entry = entry->second.expired() ? shared.erase(entry) : std::next(entry);
    }
};

CLQSurfManager::CLQSurfManager() : m_pImpl(std::make_unique<Impl>()) {}

CLQSurfManager::~CLQSurfManager() = default;

CLQSurfManager* CLQSurfManager::GetInstance() {
    static CLQSurfManager instance;
    return &instance;
}

CLQSurfHandle CLQSurfManager::CreateSurface(const wchar_t* file, bool share) {
    if (file == nullptr || *file == L'\0')
        return CLQSurfHandle();
    const std::wstring path = korvane::ResourcePath(korvane::ResourceKind::Image, file);
    if (!share)
        return CLQSurfHandle(LoadSurface(path));
    std::wstring key = PathKey(path);
    const auto known = m_pImpl->shared.find(key);
    if (known != m_pImpl->shared.end()) {
        if (std::shared_ptr<CLQSurface> surface = known->second.lock())
            return CLQSurfHandle(std::move(surface));
    }
    m_pImpl->DropDead();
    std::shared_ptr<CLQSurface> surface = LoadSurface(path);
    if (surface)
        m_pImpl->shared.emplace(std::move(key), surface);
    return CLQSurfHandle(std::move(surface));
}

CLQSurfHandle CLQSurfManager::CreateSurface(int width, int height, _eSurfaceType type, bool /*clear*/) {
    auto surface = std::make_shared<CLQSurface>();
    if (!surface->State().Allocate(width, height, type))
        return CLQSurfHandle();
    return CLQSurfHandle(std::move(surface));
}
