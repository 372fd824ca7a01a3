#include <string>
#include <string_view>

#include "platform/Display.h"
#include "platform/display/MemoryDisplay.h"
#include "platform/display/SystemDisplay.h"

namespace korvane {
namespace {

std::string& FailureText() {
    static thread_local std::string text;
    return text;
}

}  // namespace

std::unique_ptr<Display> CreateDisplay(const char* name) {
    if (std::string_view(name ? name : "") == "memory")
        return std::make_unique<MemoryDisplay>();
    return CreateSystemDisplay(name);
}

bool FailDisplay(const char* text) {
    FailureText() = text ? text : "";
    return false;
}

const char* DisplayFailure() {
    return FailureText().c_str();
}

}  // namespace korvane
