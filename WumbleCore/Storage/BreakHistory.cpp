#include "WumbleCore/Storage/BreakHistory.h"
#include "WumbleCore/Foundation/JsonCoding.h"

#include <algorithm>

namespace wumble {

void BreakHistoryReader::feed(std::string_view bytes) {
    for (auto end = bytes.find('\n'); end != std::string_view::npos; end = bytes.find('\n')) {
        const auto rest = bytes.substr(0, end);
        bytes.remove_prefix(end + 1);
        if (unfinished_.empty() && !isTooLong_) {
            readLine(rest);
            continue;
        }
        keepUnfinished(rest);
        readLine(unfinished_);
        unfinished_.clear();
        isTooLong_ = false;
    }
    keepUnfinished(bytes);
}

void BreakHistoryReader::keepUnfinished(std::string_view start) {
    isTooLong_ = isTooLong_ || unfinished_.size() + start.size() > longestLine;
    if (isTooLong_) {
        unfinished_.clear();
    } else {
        unfinished_ += start;
    }
}

void BreakHistoryReader::readLine(std::string_view line) {
    if (line.empty() || line.size() > longestLine || !line_.parse(line)) {
        return;
    }
    const auto record =
        JsonDecoder(DateForm::iso8601).decodeMembers<BreakRecord>([this](std::string_view key) {
            return line_.find(key);
        });
    if (!record) {
        return;
    }
    const auto [place, isNew] = places_.try_emplace(record->id, records_.size());
    if (isNew) {
        records_.push_back(*record);
    } else {
        records_[place->second] = *record;
    }
}

std::vector<BreakRecord> BreakHistoryReader::finish() {
    readLine(unfinished_);
    std::ranges::stable_sort(records_, {}, &BreakRecord::start);
    return std::move(records_);
}

std::vector<BreakRecord> readHistory(std::string_view text) {
    BreakHistoryReader reader;
    reader.feed(text);
    return reader.finish();
}

} // namespace wumble
