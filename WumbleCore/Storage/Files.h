#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wumble {

/// Files larger than this aren't ours: reading one whole answers as if it couldn't be read.
inline constexpr std::size_t largestWholeFile = std::size_t{16} << 20;

/// The bytes of a regular file; absent when it is missing, unreadable, too large or no file.
std::optional<std::string> readWholeFile(const std::filesystem::path& path);

/// Hands a regular file of any size over in pieces; false when it can't be read to its end.
bool readInPieces(const std::filesystem::path& path, const std::function<void(std::string_view)>& piece);

/// Writes the file whole or not at all, also when the program or the machine dies in the middle. A link to
/// a file keeps pointing where it did. False when the old file still stands.
bool replaceWholeFile(const std::filesystem::path& path, std::string_view bytes);

/// Adds one line with one short write and makes the file where there is none. A line that could be written
/// only in part is taken back, and what a crash left of an earlier line is closed off first, so that neither
/// spoils a neighbour. False when the file stands as before.
bool appendLine(const std::filesystem::path& path, std::string_view line);

} // namespace wumble
