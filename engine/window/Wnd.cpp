#include "engine/window/Wnd.h"

#include <algorithm>

namespace {

/// Memory that was allocated for an object whose constructor has not run yet. Of fixed size and without a
/// destructor, since objects may also come and go while the program ends. More than this many nested
/// allocations make the outermost count as not created with `new`.
struct PendingAllocations {
    static constexpr std::size_t kCapacity = 16;
    void* memory[kCapacity];
    std::size_t count;
};

thread_local PendingAllocations pending = {};

void AddPending(void* memory) {
    if (pending.count == PendingAllocations::kCapacity) {
        std::copy(pending.memory + 1, pending.memory + pending.count, pending.memory);
        --pending.count;
    }
    pending.memory[pending.count++] = memory;
}

bool TakePending(void* memory) {
    for (std::size_t i = pending.count; i-- > 0;) {
        if (pending.memory[i] != memory)
            continue;
        std::copy(pending.memory + i + 1, pending.memory + pending.count, pending.memory + i);
        --pending.count;
        return true;
    }
    return false;
}

int ClampPosition(long long value) {
    return static_cast<int>(
        std::clamp<long long>(value, -korvane::kMaxPosition, static_cast<long long>(korvane::kMaxPosition)));
}

bool InRange(int position) {
    return position >= -korvane::kMaxPosition && position <= korvane::kMaxPosition;
}

bool IsExtent(int extent) {
    return extent >= 0 && extent <= korvane::kMaxExtent;
}

}  // namespace

CLQWnd::CLQWnd() : m_bCreatedWithNew(TakePending(this)) {}

CLQWnd::CLQWnd(const CLQWnd& other)
    : m_nX(other.m_nX),
      m_nY(other.m_nY),
      m_nWidth(other.m_nWidth),
      m_nHeight(other.m_nHeight),
      m_nKind(other.m_nKind),
      m_bShow(other.m_bShow),
      m_bFocusEnabled(other.m_bFocusEnabled),
      m_bRecvMsg(other.m_bRecvMsg),
      m_bEnabled(other.m_bEnabled),
      m_bCreatedWithNew(TakePending(this)) {}

CLQWnd& CLQWnd::operator=(const CLQWnd& other) {
    m_nX = other.m_nX;
    m_nY = other.m_nY;
    m_nWidth = other.m_nWidth;
    m_nHeight = other.m_nHeight;
    m_nKind = other.m_nKind;
    m_bShow = other.m_bShow;
    m_bFocusEnabled = other.m_bFocusEnabled;
    m_bRecvMsg = other.m_bRecvMsg;
    m_bEnabled = other.m_bEnabled;
    return *this;
}

CLQWnd::~CLQWnd() = default;

void* CLQWnd::operator new(std::size_t size) {
    void* memory = ::operator new(size);
    AddPending(memory);
    return memory;
}

void* CLQWnd::operator new(std::size_t size, const std::nothrow_t&) noexcept {
    void* memory = ::operator new(size, std::nothrow);
    if (memory)
        AddPending(memory);
    return memory;
}

void* CLQWnd::operator new(std::size_t, void* where) noexcept {
    return where;
}

void CLQWnd::operator delete(void* memory) noexcept {
    // Still noted when the constructor has thrown.
    TakePending(memory);
    ::operator delete(memory);
}

void CLQWnd::operator delete(void* memory, const std::nothrow_t&) noexcept {
    operator delete(memory);
}

void CLQWnd::operator delete(void*, void*) noexcept {}

bool CLQWnd::IsCreatedWithNew() const {
    return m_bCreatedWithNew;
}

bool CLQWnd::Create(int x, int y, int width, int height) {
    if (!InRange(x) || !InRange(y) || !IsExtent(width) || !IsExtent(height))
        return false;
    m_nX = x;
    m_nY = y;
    m_nWidth = width;
    m_nHeight = height;
    return true;
}

void CLQWnd::SetSize(int width, int height) {
    m_nWidth = std::clamp(width, 0, korvane::kMaxExtent);
    m_nHeight = std::clamp(height, 0, korvane::kMaxExtent);
}

void CLQWnd::Move(int dx, int dy) {
    MoveTo(ClampPosition(static_cast<long long>(m_nX) + dx),
           ClampPosition(static_cast<long long>(m_nY) + dy));
}

void CLQWnd::MoveTo(int x, int y) {
    m_nX = ClampPosition(x);
    m_nY = ClampPosition(y);
}

void CLQWnd::SetShow(bool show) {
    m_bShow = show;
}

bool CLQWnd::IsShow() {
    return m_bShow;
}

void CLQWnd::EnableFocus(bool enable) {
    m_bFocusEnabled = enable;
}

void CLQWnd::LoadResource() {}

void CLQWnd::SetFocus(bool focus) {
    m_bFocus = focus;
}

void CLQWnd::EnableRecvMsg(bool enable) {
    m_bRecvMsg = enable;
}

void CLQWnd::EnableWindow(bool enable) {
    m_bEnabled = enable;
}

bool CLQWnd::DoMessage(_LQMessage*) {
    return false;
}

void CLQWnd::Draw(CLQSurfHandle&) {}

bool CLQWnd::DoCommand(_LQMessage*) {
    return false;
}

void CLQWnd::ChangeLanguage() {}

void CLQWnd::GetPos(int& x, int& y) {
    x = m_nX;
    y = m_nY;
}

void CLQWnd::GetSize(int& width, int& height) {
    width = m_nWidth;
    height = m_nHeight;
}

bool CLQWnd::IsFocus() {
    return m_bFocus;
}

bool CLQWnd::IsFocusEnabled() const {
    return m_bFocusEnabled;
}

bool CLQWnd::IsRecvMsgEnabled() const {
    return m_bRecvMsg;
}

bool CLQWnd::IsWindowEnabled() const {
    return m_bEnabled;
}

int CLQWnd::GetKind() const {
    return m_nKind;
}
