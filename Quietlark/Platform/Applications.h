#pragma once

#include "Quietlark/Platform/AppRef.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quietlark {

/// What a program tells of itself, for the rules that know a game.
struct AppInspection {
    std::vector<std::string> paths;      ///< its executable and what it was installed as
    std::vector<std::string> categories; ///< "public.app-category.…"; empty when it states none

    bool operator==(const AppInspection&) const = default;
};

/// Programs by the names that a person knows them by.
class Applications {
public:
    virtual ~Applications() = default;

    /// The program of the window that has the keyboard.
    virtual std::optional<AppRef> frontmost() = 0;

    /// One for each program that runs for this person, the identifier of each known as well as may be.
    virtual std::vector<AppRef> running() = 0;

    /// Whether a process of this person has this name. Exact, upper and lower case told apart.
    virtual bool isProcessRunning(std::string_view processName) = 0;

    /// Absent for a process that is gone or belongs to somebody else.
    virtual std::optional<std::string> executable(int pid) = 0;

    virtual AppInspection inspect(const AppRef& app) = 0;

    /// Whether a window of the frontmost program covers all of a screen.
    virtual bool frontmostFillsAScreen() = 0;
};

} // namespace quietlark
