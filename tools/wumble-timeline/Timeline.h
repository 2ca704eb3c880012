#pragma once

#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Foundation/Json.h"

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace wumble::timeline {

/// Tells a recording as a day-by-day story: the recording's own comments, what the person did, and what the
/// engine answered, each with its time on the person's clock.
class Timeline {
public:
    explicit Timeline(std::ostream& output) : output_(output) {}

    /// A comment of the recording, without its "#".
    void tellComment(std::string_view comment);

    /// A command and the answer it got.
    void tell(const Json& command, const Json& answer);

private:
    void tellEvents(const Json::Array& events);
    void tellMoment(Date date, const std::string& sentence);
    void beginDay(Date date);
    void followCalendar(const Json& command);

    std::ostream& output_;
    Calendar calendar_;
    Date now_;
    std::optional<CivilDay> day_;
    bool isAfterComment_ = false;
};

} // namespace wumble::timeline
