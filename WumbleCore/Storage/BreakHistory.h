#pragma once

#include "WumbleCore/Foundation/Json.h"
#include "WumbleCore/Storage/BreakRecord.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wumble {

/// Reads history lines as they come, in pieces of any size. Lines that can't be read are passed over; the
/// last line of an id counts and takes the place of the first.
class BreakHistoryReader {
public:
    /// No record is longer than this; a longer line is passed over without being kept.
    static constexpr std::size_t longestLine = std::size_t{1} << 20;

    void feed(std::string_view bytes);

    /// All records by start, equal starts in order of first appearance. Ends the reading.
    std::vector<BreakRecord> finish();

private:
    void readLine(std::string_view line);
    void keepUnfinished(std::string_view start);

    std::vector<BreakRecord> records_;
    std::unordered_map<UUID, std::size_t> places_;
    FlatJsonObject line_;
    std::string unfinished_;
    bool isTooLong_ = false;
};

/// The records of a whole history text.
std::vector<BreakRecord> readHistory(std::string_view text);

} // namespace wumble
