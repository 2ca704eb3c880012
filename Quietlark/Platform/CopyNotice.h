#pragma once

#include <functional>
#include <string>

namespace quietlark {

/// How a second copy on the same data folder, and the person who starts the program again, reach the copy that
/// runs. Without a session bus nothing is sent and nothing comes, and that is no failure.
class CopyNotice {
public:
    virtual ~CopyNotice() = default;

    /// Tells the copy that runs on this folder. Returns when the message has left, at the latest after a second.
    virtual void postAnotherCopyStarted(const std::string& folder) = 0;

    /// Called when another copy was started on this folder.
    virtual void observeAnotherCopyStarted(const std::string& folder, std::function<void()> started) = 0;

    /// Called when the desktop asks the running program to show itself.
    virtual void observeActivation(std::function<void()> activated) = 0;

    /// Called when the desktop's session is about to end; what has to be saved is saved before it returns.
    virtual void observeSessionEnd(std::function<void()> ending) = 0;
};

} // namespace quietlark
