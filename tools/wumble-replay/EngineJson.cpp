#include "tools/wumble-replay/EngineJson.h"
#include "WumbleCore/Foundation/JsonCoding.h"
#include "WumbleCore/Foundation/Match.h"

namespace wumble::replay {

namespace {

constexpr JsonEncoder encoder(DateForm::secondsSinceEpoch);

Json tagged(const char* name, Json payload = Json::Object{}) {
    return Json::Object{{name, std::move(payload)}};
}

Json withApp(const char* name, const std::optional<std::string>& app) {
    Json::Object payload;
    encoder.put(payload, "app", app);
    return tagged(name, std::move(payload));
}

template <class Value>
void putJson(Json::Object& object, const char* key, const std::optional<Value>& value) {
    if (value) {
        object.insert_or_assign(key, toJson(*value));
    }
}

Json returnedJson(const event::Returned& returned) {
    Json::Object payload{{"awayFor", returned.awayFor}, {"freshSession", returned.freshSession}};
    putJson(payload, "natural", returned.natural);
    return tagged("returned", std::move(payload));
}

Json activityChangedJson(const event::SmartActivityChanged& changed) {
    Json::Object payload;
    putJson(payload, "activity", changed.activity);
    return tagged("smartActivityChanged", std::move(payload));
}

Json headsUpJson(const event::HeadsUp& headsUp) {
    return tagged("headsUp", Json::Object{{"kind", enumText(headsUp.kind)}, {"dueIn", headsUp.dueIn}});
}

void putStored(Json::Object& state, const BreakEngine& engine) {
    state.insert({{"phase", toJson(engine.phase())},
                  {"workElapsed", engine.workElapsed()},
                  {"moveCarry", engine.moveCarry()},
                  {"moveRetried", engine.moveRetried()},
                  {"snoozesThisBreak", engine.snoozesThisBreak()},
                  {"snoozesToday", engine.snoozesToday()},
                  {"advanceSkipsToday", engine.advanceSkipsToday()},
                  {"ignoringSmartPause", engine.ignoringSmartPause()},
                  {"longestStretchToday", engine.longestStretchToday()},
                  {"nudgeTurn", engine.nudgeTurn()}});
    putJson(state, "hold", engine.hold());
    putJson(state, "smartActivity", engine.smartActivity());
    putJson(state, "rawSmartActivity", engine.rawSmartActivity());
    putJson(state, "liveShare", engine.liveShare());
    putJson(state, "breatherAfter", engine.breatherAfter());
}

void putDerived(Json::Object& state, const BreakEngine& engine, Date now) {
    state.insert({{"upcomingKind", enumText(engine.upcomingKind())},
                  {"breakTarget", engine.breakTarget()},
                  {"secondsUntilBreak", engine.secondsUntilBreak()},
                  {"overdue", engine.overdue()},
                  {"moveElapsed", engine.moveElapsed()},
                  {"canSnooze", engine.canSnooze()},
                  {"canSkip", engine.canSkip(now)},
                  {"canSkipInAdvance", engine.canSkipInAdvance()},
                  {"canEndBreak", engine.canEndBreak(now)},
                  {"typingHoldSpent", engine.typingHoldSpent()},
                  {"canWaitForPause", engine.canWaitForPause()},
                  {"waitingForPause", engine.waitingForPause()},
                  {"canIgnoreSmartPause", engine.canIgnoreSmartPause()},
                  {"ignoreBreather", engine.ignoreBreather()}});
    encoder.put(state, "snoozesRemaining", engine.snoozesRemaining());
    encoder.put(state, "skipUnlocksIn", engine.skipUnlocksIn(now));
    encoder.put(state, "typingHoldEnds", engine.typingHoldEnds());
}

} // namespace

Json toJson(const SmartActivity& activity) {
    return match(
        activity, [](const activity::Meeting& meeting) { return withApp("meeting", meeting.app); },
        [](const activity::ScreenSharing& share) { return withApp("screenSharing", share.app); },
        [](const activity::Video& video) { return withApp("video", video.app); },
        [](const activity::Game& game) { return withApp("game", game.app); },
        [](const activity::FocusApp& focus) { return withApp("focusApp", focus.app); });
}

Json toJson(const HoldReason& hold) {
    return match(
        hold, [](const hold::Smart& smart) { return tagged("smart", toJson(smart.activity)); },
        [](const hold::Cooldown& cooldown) {
            return tagged("cooldown", Json::Object{{"until", encoder.encode(cooldown.until)}});
        },
        [](hold::Typing) { return tagged("typing"); });
}

Json toJson(const PauseReason& reason) {
    return match(
        reason,
        [](const pause::Manual& manual) {
            Json::Object payload;
            encoder.put(payload, "until", manual.until);
            return tagged("manual", std::move(payload));
        },
        [](const pause::Away& away) {
            return tagged("away", Json::Object{{"since", encoder.encode(away.since)}});
        },
        [](pause::OffHours) { return tagged("offHours"); });
}

Json toJson(const Phase& phase) {
    return match(
        phase, [](phase::Working) { return tagged("working"); },
        [](const phase::OnBreak& onBreak) { return tagged("onBreak", encoder.encode(onBreak.activeBreak)); },
        [](const phase::Paused& paused) { return tagged("paused", toJson(paused.reason)); },
        [](phase::Stopped) { return tagged("stopped"); });
}

Json toJson(const BreakRecord& record) { return encoder.encode(record); }

Json toJson(const EngineEvent& event) {
    return match(
        event, [](const event::HeadsUp& headsUp) { return headsUpJson(headsUp); },
        [](const event::BreakStarted& started) {
            return tagged("breakStarted", encoder.encode(started.activeBreak));
        },
        [](const event::BreakAwaitingEnd& waiting) {
            return tagged("breakAwaitingEnd", encoder.encode(waiting.activeBreak));
        },
        [](const event::BreakFinished& finished) { return tagged("breakFinished", toJson(finished.record)); },
        [](const event::PreviewEnded& ended) {
            return tagged("previewEnded", Json::Object{{"completed", ended.completed}});
        },
        [](const event::Snoozed& snoozed) {
            return tagged("snoozed", Json::Object{{"by", snoozed.by}, {"fromBreak", snoozed.fromBreak}});
        },
        [](const event::WentAway& left) {
            return tagged("wentAway", Json::Object{{"since", encoder.encode(left.since)}});
        },
        [](const event::Returned& returned) { return returnedJson(returned); },
        [](const event::Wellness& nudge) {
            return tagged("wellness", Json::Object{{"kind", enumText(nudge.kind)}});
        },
        [](const event::SmartActivityChanged& changed) { return activityChangedJson(changed); },
        [](const event::OfficeHoursChanged& changed) {
            return tagged("officeHoursChanged", Json::Object{{"inside", changed.inside}});
        },
        [](event::WaitingForPause) { return tagged("waitingForPause"); },
        [](event::PauseEnded) { return tagged("pauseEnded"); });
}

Json toJson(const EngineEvents& events) {
    Json::Array list;
    for (const auto& event : events) {
        list.push_back(toJson(event));
    }
    return list;
}

Json stateJson(const BreakEngine& engine, Date now) {
    Json::Object state;
    putStored(state, engine);
    putDerived(state, engine, now);
    return state;
}

std::optional<SmartActivity> activityFromJson(const Json::Object& tagged) {
    if (tagged.size() != 1 || tagged.begin()->second.object() == nullptr) {
        return std::nullopt;
    }
    const auto& [name, payload] = *tagged.begin();
    const auto member = payload.object()->find("app");
    const bool hasApp = member != payload.object()->end() && !member->second.isNull();
    std::optional<std::string> app;
    if (hasApp) {
        const auto* text = member->second.string();
        if (text == nullptr) {
            return std::nullopt;
        }
        app = *text;
    }
    if (name == "meeting") {
        return activity::Meeting{app};
    }
    if (name == "screenSharing") {
        return activity::ScreenSharing{app};
    }
    if (name == "video") {
        return activity::Video{app};
    }
    if (name == "game" && app) {
        return activity::Game{*app};
    }
    if (name == "focusApp" && app) {
        return activity::FocusApp{*app};
    }
    return std::nullopt;
}

} // namespace wumble::replay
