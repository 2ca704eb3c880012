#include "WumbleCore/Engine/Limit.h"

#include <algorithm>

namespace wumble {

std::optional<Counter> Limit::remaining(Counter used) const {
    if (!count_) {
        return std::nullopt;
    }
    return std::max<Counter>(saturatingDifference(*count_, used), 0);
}

Json Limit::toJson() const {
    if (!count_) {
        return Json::Object{{"unlimited", Json::Object{}}};
    }
    return Json::Object{{"count", Json::Object{{"_0", *count_}}}};
}

std::optional<Limit> Limit::fromJson(const Json& json) {
    const auto* cases = json.object();
    if (cases == nullptr || cases->size() != 1) {
        return std::nullopt;
    }
    const auto& [name, payload] = *cases->begin();
    const auto* fields = payload.object();
    if (fields == nullptr) {
        return std::nullopt;
    }
    if (name == "unlimited") {
        return unlimited();
    }
    const auto number = fields->find("_0");
    if (name != "count" || number == fields->end()) {
        return std::nullopt;
    }
    const auto count = number->second.wholeNumber();
    return count ? std::optional(Limit::count(*count)) : std::nullopt;
}

} // namespace wumble
