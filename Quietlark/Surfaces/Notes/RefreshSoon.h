#pragma once

#include "Quietlark/MainLoop.h"

#include <functional>
#include <memory>

namespace quietlark {

/// Joins what changes in one go into one look at it. The model changes field by field, and at the end of it may send
/// the note away: what leaves should not have looked in the middle.
class RefreshSoon {
public:
    /// `loop` outlives it. Destroyed, it refreshes nothing any more.
    RefreshSoon(MainLoop& loop, std::function<void()> refresh);
    RefreshSoon(const RefreshSoon&) = delete;
    RefreshSoon& operator=(const RefreshSoon&) = delete;

    /// Refreshes once the loop is free.
    void ask();

private:
    MainLoop& loop_;
    std::function<void()> refresh_;
    std::shared_ptr<bool> isAsked_ = std::make_shared<bool>(false); ///< held weakly by what wakes later
};

} // namespace quietlark
