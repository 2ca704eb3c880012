#include "tools/wumble-replay/Arguments.h"

namespace wumble::replay {

const Json* Arguments::find(std::string_view key) const {
    const auto member = keys_.find(key);
    return member == keys_.end() ? nullptr : &member->second;
}

void Arguments::fail(std::string_view key, std::string_view reason) {
    if (failure_.empty()) {
        failure_ = "\"" + std::string(key) + "\" " + std::string(reason);
    }
}

const Json::Object* Arguments::optionalObject(std::string_view key) {
    const auto* json = find(key);
    if (json == nullptr || json->isNull()) {
        return nullptr;
    }
    return requiredObject(key);
}

const Json::Object* Arguments::requiredObject(std::string_view key) {
    const auto* json = find(key);
    if (json == nullptr) {
        fail(key, "is missing");
        return nullptr;
    }
    if (json->object() == nullptr) {
        fail(key, "is no object");
    }
    return json->object();
}

} // namespace wumble::replay
