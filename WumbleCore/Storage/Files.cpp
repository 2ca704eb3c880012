#include "WumbleCore/Storage/Files.h"
#include "WumbleCore/Storage/FileDescriptor.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace wumble {

namespace {

/// Only the person may read what the pet knows about them.
constexpr mode_t privateFile = 0600;

/// A pipe or a device in the place of a file must not make the program wait.
constexpr int neverWait = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

std::optional<std::size_t> regularFileSize(const FileDescriptor& file) {
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(status.st_size);
}

bool writeAll(const FileDescriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = ::write(file.get(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool writeNewFile(const std::filesystem::path& path, std::string_view bytes) {
    const FileDescriptor file(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | neverWait, privateFile));
    return file.isOpen() && writeAll(file, bytes) && ::fsync(file.get()) == 0;
}

void flushFolder(const std::filesystem::path& folder) {
    const FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        ::fsync(descriptor.get());
    }
}

/// The file that a link leads to. What leads to a device or a pipe is replaced itself, never its target.
std::filesystem::path behindLinks(const std::filesystem::path& path) {
    std::error_code error;
    auto target = std::filesystem::canonical(path, error);
    return !error && std::filesystem::is_regular_file(target, error) ? target : path;
}

FileDescriptor openForReading(const std::filesystem::path& path) {
    return FileDescriptor(::open(path.c_str(), O_RDONLY | neverWait));
}

bool readOn(const FileDescriptor& file, const std::function<void(std::string_view)>& piece) {
    std::array<char, std::size_t{1} << 16> buffer{};
    for (;;) {
        const auto count = ::read(file.get(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return count == 0;
        }
        piece({buffer.data(), static_cast<std::size_t>(count)});
    }
}

bool endsInsideALine(const FileDescriptor& file, std::size_t size) {
    char last = '\n';
    return size > 0 && ::pread(file.get(), &last, 1, static_cast<off_t>(size - 1)) == 1 && last != '\n';
}

} // namespace

bool readInPieces(const std::filesystem::path& path, const std::function<void(std::string_view)>& piece) {
    const FileDescriptor file = openForReading(path);
    return regularFileSize(file) && readOn(file, piece);
}

std::optional<std::string> readWholeFile(const std::filesystem::path& path) {
    const FileDescriptor file = openForReading(path);
    const auto size = regularFileSize(file);
    if (!size || *size > largestWholeFile) {
        return std::nullopt;
    }
    std::string bytes;
    if (!readOn(file, [&](std::string_view piece) { bytes += piece; })) {
        return std::nullopt;
    }
    return bytes;
}

bool replaceWholeFile(const std::filesystem::path& path, std::string_view bytes) {
    const auto target = behindLinks(path);
    // One fixed name a file: what a crash leaves behind is taken away by the next save.
    const auto temporary = target.parent_path() / ("." + target.filename().string() + ".saving");
    ::unlink(temporary.c_str());
    if (!writeNewFile(temporary, bytes) || ::rename(temporary.c_str(), target.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    flushFolder(target.parent_path());
    return true;
}

bool appendLine(const std::filesystem::path& path, std::string_view line) {
    std::string bytes(line);
    bytes += '\n';
    const FileDescriptor file(::open(path.c_str(), O_RDWR | O_APPEND | neverWait));
    if (!file.isOpen()) {
        // Only where there is none: a file that can't be opened right now must not be replaced by one line.
        return errno == ENOENT && replaceWholeFile(path, bytes);
    }
    const auto size = regularFileSize(file);
    if (!size) {
        return false;
    }
    if (endsInsideALine(file, *size)) {
        bytes.insert(bytes.begin(), '\n');
    }
    if (writeAll(file, bytes)) {
        return true;
    }
    [[maybe_unused]] const int tried = ::ftruncate(file.get(), static_cast<off_t>(*size));
    return false;
}

} // namespace wumble
