#include "tools/quietlark-soak/Recording.h"

#include "tools/wumble-replay/Arguments.h"
#include "tools/wumble-replay/EngineJson.h"

#include <fstream>
#include <map>
#include <string_view>
#include <utility>

namespace quietlark::soak {

namespace {

using wumble::Date;
using wumble::replay::Arguments;

class Reader {
public:
    void read(const wumble::Json::Object& command) {
        Arguments arguments(command);
        const auto name = arguments.required<std::string>("do");
        if (name == "calendar") {
            recording_.timeZone = arguments.optional("timeZone", recording_.timeZone);
        } else if (name == "new") {
            begin(arguments);
        } else if (name == "run") {
            run(arguments);
        } else if (name == "tick") {
            tick(arguments);
        } else if (const auto act = actOf(name, arguments)) {
            recording_.scenes.push_back(
                {.until = arguments.optional("now", now_), .person = person_, .atEnd = *act});
            now_ = recording_.scenes.back().until;
        }
    }

    std::optional<Recording> finished() && {
        return hasBegun_ ? std::optional(std::move(recording_)) : std::nullopt;
    }

private:
    void begin(Arguments& arguments) {
        const auto* settings = arguments.optionalObject("settings");
        recording_.settings =
            settings != nullptr ? wumble::WumbleSettings::decode(*settings) : wumble::WumbleSettings{};
        recording_.begin = now_ = arguments.required<Date>("now");
        hasBegun_ = true;
    }

    void run(Arguments& arguments) {
        Scene scene{.until = arguments.required<Date>("until"),
                    .secondsSinceKeyDown = arguments.optional<double>("secondsSinceKeyDown")};
        if (const auto* activity = arguments.optionalObject("smartActivity")) {
            scene.activity = wumble::replay::activityFromJson(*activity);
        }
        person_ = Scene::Person::present;
        now_ = scene.until;
        recording_.scenes.push_back(std::move(scene));
    }

    /// One look after a while: without idle time the machine slept meanwhile, otherwise nobody was there.
    void tick(Arguments& arguments) {
        const Date now = arguments.required<Date>("now");
        const auto idle = arguments.optional<double>("idleSeconds");
        recording_.scenes.push_back({.until = now,
                                     .person = Scene::Person::away,
                                     .machine = idle ? Scene::Machine::awake : Scene::Machine::asleep});
        person_ = idle == 0.0 ? Scene::Person::present : Scene::Person::away;
        now_ = now;
    }

    static std::optional<Act> actOf(std::string_view name, Arguments& arguments) {
        const std::map<std::string_view, Act> acts{
            {"snooze", act::Snooze{arguments.optional("by", 0.0)}},
            {"pause", act::Pause{arguments.optional<Date>("until")}},
            {"skip", act::Skip{}},
            {"ignoreSmartPause", act::IgnoreSmartPause{}},
            {"restore", act::Restart{}},
            {"story", act::Tell{}},
        };
        const auto found = acts.find(name);
        return found != acts.end() ? std::optional(found->second) : std::nullopt;
    }

    Recording recording_;
    Date now_;
    Scene::Person person_ = Scene::Person::present;
    bool hasBegun_ = false;
};

} // namespace

std::optional<Recording> Recording::read(const std::filesystem::path& file) {
    std::ifstream lines(file);
    Reader reader;
    for (std::string line; std::getline(lines, line);) {
        const auto command = wumble::parseJson(line).value;
        if (command && command->object() != nullptr) {
            reader.read(*command->object());
        }
    }
    return std::move(reader).finished();
}

} // namespace quietlark::soak
