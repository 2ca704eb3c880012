#include "WumbleCore/Motion/Choreography.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

Reply Replay::choreography(Arguments& arguments) {
    const auto t = arguments.required<double>("t");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto [drop, tilt] = Choreography::hang(t);
    return Json(Json::Object{{"blinkShut", Choreography::blinkShut(t)},
                             {"breathFill", Choreography::breathFill(t)},
                             {"drop", drop},
                             {"tilt", tilt}});
}

} // namespace wumble::replay
