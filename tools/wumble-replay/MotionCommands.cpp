#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Motion/Choreography.h"
#include "WumbleCore/Motion/NotePose.h"
#include "WumbleCore/Motion/SVGPath.h"
#include "WumbleCore/Motion/WumbleJelly.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

namespace {

std::optional<WumbleJelly> jellyPreset(std::string_view name) {
    if (name == "wumble") {
        return WumbleJelly::wumble;
    }
    return name == "stiff" ? std::optional(WumbleJelly::stiff) : std::nullopt;
}

std::vector<Point> readPoints(Arguments& arguments, std::string_view key) {
    std::vector<Point> points;
    for (const auto& pair : arguments.required<std::vector<std::vector<double>>>(key)) {
        if (pair.size() != 2) {
            arguments.fail(key, "holds something that is no [x,y]");
            break;
        }
        points.push_back({pair[0], pair[1]});
    }
    return points;
}

Json segmentJson(const char* letter, std::initializer_list<Point> points) {
    Json::Array element{letter};
    for (const auto& [x, y] : points) {
        element.emplace_back(x);
        element.emplace_back(y);
    }
    return element;
}

Json segmentJson(const Segment& segment) {
    using namespace segment;
    return match(
        segment, [](const Move& move) { return segmentJson("M", {move.to}); },
        [](const Line& line) { return segmentJson("L", {line.to}); },
        [](const Cubic& curve) {
            return segmentJson("C", {curve.control1, curve.control2, curve.to});
        },
        [](const Quadratic& curve) {
            return segmentJson("Q", {curve.control, curve.to});
        },
        [](Close) { return segmentJson("Z", {}); });
}

Json poseJson(const NotePose& pose) {
    return Json::Object{{"scale", pose.scale},   {"air", pose.air},   {"opacity", pose.opacity},
                        {"tilt", pose.tilt},     {"drop", pose.drop}, {"wumble", pose.wumble},
                        {"squash", pose.squash}, {"shut", pose.shut}};
}

} // namespace

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

Reply Replay::jiggle(Arguments& arguments) {
    const auto jelly = jellyPreset(arguments.required<std::string>("preset"));
    if (!jelly) {
        arguments.fail("preset", "is no preset");
    }
    const auto history = readPoints(arguments, "history");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto [x, y] = jelly->jiggle(history);
    return Json(Json::Object{
        {"x", x}, {"y", y}, {"memory", jelly->memory()}, {"samples", Counter{jelly->samples()}}});
}

Reply Replay::svg(Arguments& arguments) {
    const auto path = arguments.required<std::string>("path");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    Json::Array elements;
    for (const auto& segment : SVGPath::parse(path)) {
        elements.push_back(segmentJson(segment));
    }
    return Json(Json::Object{{"elements", std::move(elements)}});
}

Reply Replay::notePose(Arguments& arguments) {
    const auto t = arguments.required<double>("t");
    const auto entrance = arguments.required<NoteEntrance>("entrance");
    const auto covering = arguments.required<bool>("covering");
    const auto leaving = arguments.required<bool>("leaving");
    const auto reduceMotion = arguments.required<bool>("reduceMotion");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return poseJson(leaving ? NotePose::leaving(t, entrance, reduceMotion)
                            : NotePose::arriving(t, covering, entrance, reduceMotion));
}

} // namespace wumble::replay
