#pragma once

#include <optional>
#include <string>

namespace quietlark {

/// Whether the program opens when the person logs in.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    virtual bool isEnabled() const = 0;

    /// False for a copy that isn't installed: it may be gone by the next login.
    virtual bool canRegister() const = 0;

    /// Absent on success, otherwise what to tell the person.
    virtual std::optional<std::string> set(bool on) = 0;
};

} // namespace quietlark
