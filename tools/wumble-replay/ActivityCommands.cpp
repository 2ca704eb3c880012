#include "WumbleCore/Activity/AppBundle.h"
#include "WumbleCore/Activity/CaptureAttribution.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Activity/VideoDetection.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

namespace {

constexpr JsonEncoder encoder(DateForm::secondsSinceEpoch);

struct RecordedDisplay {
    std::vector<double> frame;
    double topInset = 0;

    static void visitJsonFields(auto&& visitor) {
        visitor("frame", &RecordedDisplay::frame);
        visitor("topInset", &RecordedDisplay::topInset);
    }
};

Rect rectFrom(Arguments& arguments, std::string_view key, const std::vector<double>& sides) {
    if (sides.size() != 4) {
        arguments.fail(key, "holds something that is no [x,y,w,h]");
        return {};
    }
    return {sides[0], sides[1], sides[2], sides[3]};
}

std::vector<GameDetection::Display> readDisplays(Arguments& arguments, std::string_view key) {
    std::vector<GameDetection::Display> displays;
    for (const auto& [frame, topInset] : arguments.required<std::vector<RecordedDisplay>>(key)) {
        displays.push_back({rectFrom(arguments, key, frame), topInset});
    }
    return displays;
}

Json sourceJson(const std::string& path) {
    const auto source = GameDetection::source(path);
    return source ? encoder.encode(*source) : Json();
}

} // namespace

Reply Replay::game(Arguments& arguments) {
    const auto bundleID = arguments.optional<std::string>("bundleID");
    const auto categories = arguments.required<std::vector<std::string>>("categories");
    const auto paths = arguments.required<std::vector<std::string>>("paths");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    Json::Array sources;
    for (const auto& path : paths) {
        sources.push_back(sourceJson(path));
    }
    return Json(Json::Object{{"isGame", GameDetection::isGame(bundleID, categories, paths)},
                             {"sources", std::move(sources)}});
}

Reply Replay::displayName(Arguments& arguments) {
    const auto name = arguments.optional<std::string>("name");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"name", GameDetection::displayName(name)}});
}

Reply Replay::fillsDisplay(Arguments& arguments) {
    const auto rect = rectFrom(arguments, "rect", arguments.required<std::vector<double>>("rect"));
    const auto displays = readDisplays(arguments, "displays");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"fills", GameDetection::fillsDisplay(rect, displays)}});
}

Reply Replay::playback(Arguments& arguments) {
    const auto name = arguments.optional<std::string>("name");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"isPlayback", VideoDetection::isPlayback(name)}});
}

Reply Replay::appBundle(Arguments& arguments) {
    const auto path = arguments.required<std::string>("path");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    Json::Object reply{{"appPaths", encoder.encode(AppBundle::appPaths(path))}};
    encoder.put(reply, "outermost", AppBundle::outermostBundlePath(path));
    encoder.put(reply, "product", AppBundle::productName(path));
    return Json(std::move(reply));
}

Reply Replay::capturers(Arguments& arguments) {
    const auto line = arguments.required<std::string>("line");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto ids = CaptureAttribution::screenCapturersInLogLine(line);
    Json::Array kinds;
    for (const auto& id : ids.value_or(std::vector<std::string>{})) {
        kinds.emplace_back(enumText(CaptureAttribution::kind(id)));
    }
    Json::Object reply{{"kinds", std::move(kinds)}, {"onlyRemote", CaptureAttribution::onlyRemote(ids)}};
    encoder.put(reply, "capturers", ids);
    return Json(std::move(reply));
}

} // namespace wumble::replay
