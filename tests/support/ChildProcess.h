#pragma once

#include <functional>
#include <string>

namespace wumble::test {

/// What a test found out in a process of its own.
struct ChildResult {
    std::string complaint; ///< empty when all was well
    bool isImpossibleHere = false;
};

/// Runs `check` in a forked child and gives what it complains about; a crash is a complaint too. The text
/// "impossible: …" says that the machine doesn't let the check be made.
ChildResult inChild(const std::function<std::string()>& check);

/// For use inside a child: puts a small file system of its own over `folder`, seen by this process alone. An
/// empty text, or one that begins with "impossible: ".
std::string mountSmallDisk(const std::string& folder, const std::string& size);

/// Makes it read-only.
std::string makeDiskReadOnly(const std::string& folder);

} // namespace wumble::test
