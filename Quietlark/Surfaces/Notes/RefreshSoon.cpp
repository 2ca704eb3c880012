#include "Quietlark/Surfaces/Notes/RefreshSoon.h"

#include <utility>

namespace quietlark {

RefreshSoon::RefreshSoon(MainLoop& loop, std::function<void()> refresh)
    : loop_(loop), refresh_(std::move(refresh)) {}

void RefreshSoon::ask() {
    if (std::exchange(*isAsked_, true)) {
        return;
    }
    loop_.after(0, [this, asked = std::weak_ptr(isAsked_)] {
        if (const auto isAsked = asked.lock()) {
            *isAsked = false;
            refresh_();
        }
    });
}

} // namespace quietlark
