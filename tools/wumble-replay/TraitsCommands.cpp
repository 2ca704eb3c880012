#include "WumbleCore/Life/WumbleTraits.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

Reply Replay::seeded(Arguments& arguments) {
    const auto seed = arguments.required<std::string>("seed");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    constexpr JsonEncoder encoder(DateForm::secondsSinceEpoch);
    return Json(Json::Object{{"traits", encoder.encode(WumbleTraits::seeded(seed))}});
}

} // namespace wumble::replay
