#include "WumbleCore/Storage/DataFolderLock.h"

#include <fcntl.h>
#include <sys/file.h>

namespace wumble {

std::optional<DataFolderLock> DataFolderLock::take(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    constexpr mode_t lockFileMode = 0644;
    FileDescriptor file(::open((folder / ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, lockFileMode));
    if (file.isOpen() && ::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        return std::nullopt;
    }
    return DataFolderLock(std::move(file));
}

} // namespace wumble
