#pragma once

#include <cstring>
#include <type_traits>

namespace korvane {

/// Carries a member-function pointer in the type of another and back. The result may be called only as the
/// type that it came from; a null pointer stays null.
template <class To, class From>
To HandlerCast(From handler) {
    static_assert(std::is_member_function_pointer<To>::value, "To is a member-function pointer");
    static_assert(std::is_member_function_pointer<From>::value, "From is a member-function pointer");
    static_assert(sizeof(To) == sizeof(From), "handlers of classes with virtual bases are not supported");
    To result;
    std::memcpy(&result, &handler, sizeof(result));
    return result;
}

}  // namespace korvane
