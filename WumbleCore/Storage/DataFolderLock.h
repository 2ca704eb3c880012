#pragma once

#include "WumbleCore/Storage/FileDescriptor.h"

#include <filesystem>
#include <optional>

namespace wumble {

/// Makes sure that one copy alone uses a folder. The lock belongs to the open file: it ends with the object or
/// with the process, however that ends, and a file left behind blocks nobody.
class DataFolderLock {
public:
    /// What a second copy sends to the first, with the folder's path.
    static constexpr auto anotherCopyStarted = "com.fernwick.quietlark.anotherCopyStarted";

    /// Absent when another process holds the folder. Where no lock file can be opened the program runs without
    /// exclusion: an odd folder must not keep the break reminder from starting.
    static std::optional<DataFolderLock> take(const std::filesystem::path& folder);

    /// False when it runs without exclusion.
    bool isExclusive() const { return descriptor_.isOpen(); }

private:
    explicit DataFolderLock(FileDescriptor descriptor) : descriptor_(std::move(descriptor)) {}

    FileDescriptor descriptor_;
};

} // namespace wumble
