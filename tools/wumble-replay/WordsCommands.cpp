#include "WumbleCore/Words/Format.h"
#include "tools/wumble-replay/Draws.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

Reply Replay::words(Arguments& arguments) {
    BreakWords::Context context{.isLong = arguments.required<bool>("long"),
                                .date = arguments.required<Date>("date"),
                                .day = storedDay(arguments),
                                .afterCall = arguments.required<bool>("afterCall"),
                                .moments = arguments.required<bool>("moments")};
    Draws draws(arguments.required<std::vector<Counter>>("draws"));
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    auto [title, line] = picker_.next(context, calendar_, draws.source());
    return Json(
        Json::Object{{"title", std::move(title)}, {"line", std::move(line)}, {"drawsUsed", draws.used()}});
}

Reply Replay::newPicker(Arguments&) {
    picker_ = {};
    return Json(Json::Object{{"ok", true}});
}

Reply Replay::format(Arguments& arguments) {
    const auto seconds = arguments.required<double>("seconds");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"clock", Format::clock(seconds)},
                             {"menuBar", Format::menuBar(seconds)},
                             {"duration", Format::duration(seconds)},
                             {"waited", Format::waited(seconds)}});
}

} // namespace wumble::replay
