#include "Quietlark/Platform/Linux/X11/X11Client.h"

#include <xcb/res.h>

namespace quietlark {

namespace {

constexpr std::size_t shortStrutLength = 4;
constexpr std::size_t longStrutLength = 12;
constexpr std::size_t topDepth = 2;
constexpr std::size_t topLeft = 8;
constexpr std::size_t topRight = 9;

} // namespace

std::string x11WindowClass(std::string_view instanceAndClass) {
    const auto end = instanceAndClass.find('\0');
    const std::string_view instance = instanceAndClass.substr(0, end);
    if (end == std::string_view::npos) {
        return std::string(instance);
    }
    const std::string_view rest = instanceAndClass.substr(end + 1);
    const std::string_view name = rest.substr(0, rest.find('\0'));
    return std::string(name.empty() ? instance : name);
}

std::optional<X11TopStrut> x11TopStrut(std::span<const std::uint32_t> numbers, double rootWidth) {
    if (numbers.size() < shortStrutLength || numbers[topDepth] == 0) {
        return {};
    }
    if (numbers.size() < longStrutLength) {
        return X11TopStrut{static_cast<double>(numbers[topDepth]), 0, rootWidth};
    }
    return X11TopStrut{static_cast<double>(numbers[topDepth]), static_cast<double>(numbers[topLeft]),
                       static_cast<double>(numbers[topRight]) + 1};
}

int x11ClientPid(const void* reply) {
    const auto* ids = static_cast<const xcb_res_query_client_ids_reply_t*>(reply);
    if (!ids) {
        return 0;
    }
    for (auto id = xcb_res_query_client_ids_ids_iterator(ids); id.rem > 0;
         xcb_res_client_id_value_next(&id)) {
        const bool isPid = (id.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0;
        if (isPid && xcb_res_client_id_value_value_length(id.data) > 0) {
            return static_cast<int>(*xcb_res_client_id_value_value(id.data));
        }
    }
    return 0;
}

} // namespace quietlark
