#include "tools/wumble-replay/EngineJson.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

namespace {

/// Thirty years of seconds; more is a slip of the pen.
constexpr Counter mostTicks = 1'000'000'000;

std::optional<SmartActivity> readActivity(Arguments& arguments, std::string_view key) {
    const auto* tagged = arguments.optionalObject(key);
    if (tagged == nullptr) {
        return std::nullopt;
    }
    auto activity = activityFromJson(*tagged);
    if (!activity) {
        arguments.fail(key, "is no activity");
    }
    return activity;
}

/// The signals of a tick but for its time; without `withinOfficeHours` the settings and the calendar say so
/// at each tick.
struct RecordedSignals {
    Signals signals;
    std::optional<bool> withinOfficeHours;

    static RecordedSignals read(Arguments& arguments) {
        RecordedSignals recorded;
        auto& signals = recorded.signals;
        signals.idleSeconds = arguments.optional("idleSeconds", signals.idleSeconds);
        signals.secondsSinceKeyDown = arguments.optional("secondsSinceKeyDown", signals.secondsSinceKeyDown);
        signals.screenLocked = arguments.optional("screenLocked", signals.screenLocked);
        signals.smartActivity = readActivity(arguments, "smartActivity");
        signals.liveShare = readActivity(arguments, "liveShare");
        recorded.withinOfficeHours = arguments.optional<bool>("withinOfficeHours");
        return recorded;
    }

    const Signals& at(Date now, const WumbleSettings& settings, const Calendar& calendar) {
        signals.now = now;
        signals.withinOfficeHours =
            withinOfficeHours ? *withinOfficeHours : settings.isWithinOfficeHours(now, calendar);
        return signals;
    }
};

} // namespace

BreakEngine Replay::makeEngine(const WumbleSettings& settings, Date now) {
    return {settings, now, calendar_,
            [this] { return UUID::random([this](std::uint64_t below) { return idSource_() % below; }); }};
}

Reply Replay::engineReply(const EngineEvents& events) const {
    return Json(Json::Object{{"events", toJson(events)}, {"state", stateJson(*engine_, lastNow_)}});
}

template <class Operation> Reply Replay::operate(Arguments& arguments, Operation operation) {
    const Date now = arguments.required<Date>("now");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    lastNow_ = now;
    if constexpr (std::is_void_v<decltype(operation(now))>) {
        operation(now);
        return engineReply({});
    } else {
        return engineReply(operation(now));
    }
}

Reply Replay::newEngine(Arguments& arguments) {
    const auto* settings = arguments.optionalObject("settings");
    const Date now = arguments.required<Date>("now");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    engine_ = makeEngine(settings != nullptr ? WumbleSettings::decode(*settings) : WumbleSettings{}, now);
    lastNow_ = now;
    return engineReply({});
}

Reply Replay::tick(Arguments& arguments) {
    auto recorded = RecordedSignals::read(arguments);
    return operate(arguments,
                   [&](Date now) { return engine_->tick(recorded.at(now, engine_->settings(), calendar_)); });
}

Reply Replay::run(Arguments& arguments) {
    auto recorded = RecordedSignals::read(arguments);
    const Date until = arguments.required<Date>("until");
    const auto every = arguments.required<double>("every");
    if (!(every > 0)) {
        arguments.fail("every", "is not above 0");
    } else if ((until - lastNow_) / every > static_cast<double>(mostTicks)) {
        arguments.fail("until", "is more than a thousand million ticks away");
    }
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const Date from = lastNow_;
    Counter ticks = 0;
    Json::Array told;
    for (Date now = from + every; now <= until; now = from + every * static_cast<double>(ticks + 1)) {
        for (const auto& event : engine_->tick(recorded.at(now, engine_->settings(), calendar_))) {
            told.push_back(Json::Object{{"at", now.secondsSinceEpoch}, {"event", toJson(event)}});
        }
        lastNow_ = now;
        ++ticks;
    }
    return Json(Json::Object{
        {"ticks", ticks}, {"events", std::move(told)}, {"state", stateJson(*engine_, lastNow_)}});
}

Reply Replay::startBreak(Arguments& arguments) {
    const auto kind = arguments.optional<BreakKind>("kind");
    const auto duration = arguments.optional<double>("duration");
    return operate(arguments, [&](Date now) { return engine_->startBreak(kind, duration, now); });
}

Reply Replay::startPreview(Arguments& arguments) {
    const auto duration = arguments.required<double>("duration");
    return operate(arguments, [&](Date now) { return engine_->startPreview(duration, now); });
}

Reply Replay::endBreak(Arguments& arguments) {
    return operate(arguments, [&](Date now) { return engine_->endBreak(now); });
}

Reply Replay::snooze(Arguments& arguments) {
    const auto by = arguments.required<double>("by");
    return operate(arguments, [&](Date now) { return engine_->snooze(by, now); });
}

Reply Replay::skip(Arguments& arguments) {
    const bool isForced = arguments.optional("force", false);
    const auto rule = isForced ? BreakEngine::SkipRule::forced : BreakEngine::SkipRule::asAllowed;
    return operate(arguments, [&](Date now) { return engine_->skip(now, rule); });
}

Reply Replay::pause(Arguments& arguments) {
    const auto until = arguments.optional<Date>("until");
    return operate(arguments, [&](Date now) { engine_->pause(until, now); });
}

Reply Replay::resume(Arguments& arguments) {
    return operate(arguments, [&](Date now) { engine_->resume(now); });
}

Reply Replay::stop(Arguments& arguments) {
    return operate(arguments, [&](Date now) { engine_->stop(now); });
}

Reply Replay::start(Arguments& arguments) {
    return operate(arguments, [&](Date now) { engine_->start(now); });
}

Reply Replay::restart(Arguments& arguments) {
    return operate(arguments, [&](Date now) { engine_->restart(now); });
}

Reply Replay::waitForPause(Arguments& arguments) {
    return operate(arguments, [&](Date now) { return engine_->waitForPause(now); });
}

Reply Replay::ignoreSmartPause(Arguments& arguments) {
    return operate(arguments, [&](Date now) { engine_->ignoreSmartPause(now); });
}

Reply Replay::stopIgnoringSmartPause(Arguments& arguments) {
    return operate(arguments, [&](Date now) { engine_->stopIgnoringSmartPause(now); });
}

Reply Replay::update(Arguments& arguments) {
    const auto* keys = arguments.requiredObject("settings");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const WumbleSettings old = engine_->settings();
    auto settings = old.overlaid(*keys);
    if (!settings) {
        return Failure{"\"settings\" has a value of the wrong type"};
    }
    settings->fitMoveToEyeBreaks(old);
    settings->fitNudgesToMoveBreaks();
    engine_->update(*settings);
    return engineReply({});
}

Reply Replay::query(Arguments& arguments) {
    const Date now = arguments.required<Date>("now");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"events", Json::Array{}}, {"state", stateJson(*engine_, now)}});
}

Reply Replay::snapshot(Arguments& arguments) {
    const Date now = arguments.required<Date>("now");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"snapshot", JsonEncoder(DateForm::iso8601).encode(engine_->snapshot(now))}});
}

Reply Replay::restore(Arguments& arguments) {
    const auto* stored = arguments.requiredObject("snapshot");
    const Date now = arguments.required<Date>("now");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto snapshot = JsonDecoder(DateForm::iso8601).decode<EngineSnapshot>(Json(*stored));
    if (!snapshot) {
        return Failure{"\"snapshot\" can't be read"};
    }
    engine_ = makeEngine(engine_->settings(), now);
    engine_->restore(*snapshot, now);
    lastNow_ = now;
    return engineReply({});
}

} // namespace wumble::replay
