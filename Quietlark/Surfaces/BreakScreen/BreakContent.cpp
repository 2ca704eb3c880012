#include "Quietlark/Surfaces/BreakScreen/BreakContent.h"

#include "Quietlark/Surfaces/BreakScreen/BreakFootnote.h"
#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Foundation/Text.h"
#include "WumbleCore/Life/RevealStep.h"
#include "WumbleCore/Words/Format.h"

#include <algorithm>
#include <array>

namespace quietlark {

namespace {

using wumble::WumbleMood;

constexpr double primaryPet = 220;
constexpr double otherPet = 160;

struct ControlRow {
    BreakControl value;
    std::string_view title;
};

constexpr std::array<ControlRow, 7> controlTitles{{
    {BreakControl::endBreak, "End Break"},
    {BreakControl::endPreview, "End preview"},
    {BreakControl::snoozeShort, "Snooze 1 min"},
    {BreakControl::snoozeLong, "Snooze 5 min"},
    {BreakControl::skip, "Skip"},
    {BreakControl::skipThisBreak, "Skip this break"},
    {BreakControl::backToWork, "Back to work"},
}};
static_assert(wumble::isInOrder(controlTitles));

constexpr std::string_view complete = "Break complete";
constexpr std::string_view completeForNow = "Break complete!";
constexpr std::string_view waiting = "Wumble will wait. Come back when you're ready.";
constexpr std::string_view previewDoneTitle = "That's a break with Wumble";
constexpr std::string_view previewDoneText = "This one was just a preview, so nothing was counted. Real "
                                             "breaks help Wumble grow, one little thing at a "
                                             "time.";

/// What the texts of one window are made from.
struct Telling {
    const AppModel& model;
    const BreakStage& stage;
    wumble::Date now;
    BreakContent content;

    const AppState& state() const { return model.state(); }
    const wumble::WumbleSettings& settings() const { return state().settings.value(); }

    void tellClock(bool isPrimary, const std::optional<wumble::ActiveBreak>& shown);
    void tellRest(bool isPrimary, const std::optional<wumble::ActiveBreak>& shown);
    void tellControls(bool isFinished);
    void tellReveal(bool isPrimary, const screen::Celebrating& phase);
    void tellPreviewDone(bool isPrimary);
};

RingValue ringOf(const wumble::ActiveBreak& shown, bool isFinished, wumble::Date now) {
    const double progress = shown.duration > 0 ? shown.progress(now) : 0;
    return {.progress = isFinished ? 1 : progress,
            .label = wumble::Format::clock(isFinished ? 0 : shown.remaining(now))};
}

WumbleMood restingMood(const std::optional<wumble::ActiveBreak>& shown, BreakScene scene) {
    if (!shown) {
        return WumbleMood::idle;
    }
    if (scene == BreakScene::finished) {
        return WumbleMood::celebrate;
    }
    return shown->kind == wumble::BreakKind::longBreak ? WumbleMood::stretching : WumbleMood::gazing;
}

void Telling::tellClock(bool isPrimary, const std::optional<wumble::ActiveBreak>& shown) {
    if (settings().showClockOnBreak) {
        content.clock = model.calendar().shortTime(now);
    }
    const bool isReal = shown && !shown->isPreview();
    const bool rests = content.scene == BreakScene::running || content.scene == BreakScene::finished;
    content.showsLock = settings().showLockButtonOnBreak && isPrimary && rests && isReal;
}

void Telling::tellControls(bool isFinished) {
    const bool showSkip =
        settings().enforcement != wumble::Enforcement::hardcore && !model.engine().skipUnlocksIn(now);
    if (content.scene == BreakScene::previewing) {
        content.controls = {BreakControl::endPreview};
    } else if (isFinished) {
        content.controls = {BreakControl::endBreak};
    } else if (state().canSnooze.value()) {
        content.controls = {BreakControl::snoozeShort, BreakControl::snoozeLong};
        if (showSkip) {
            content.controls.push_back(BreakControl::skip);
        }
    } else if (showSkip) {
        content.controls = {BreakControl::skipThisBreak};
    }
}

void Telling::tellRest(bool isPrimary, const std::optional<wumble::ActiveBreak>& shown) {
    const bool isFinished = content.scene == BreakScene::finished;
    content.mood = restingMood(shown, content.scene);
    if (isFinished) {
        content.title = complete;
        content.subtitle = isPrimary ? waiting : endByKey;
    } else if (isPrimary) {
        content.title = state().breakTitle.value();
        content.subtitle = state().breakSubtitle.value();
    } else if (shown) {
        content.timeLeft = wumble::Format::clock(shown->remaining(now));
    }
    if (!isPrimary) {
        return;
    }
    if (shown) {
        content.ring = ringOf(*shown, isFinished, now);
    }
    tellControls(isFinished);
    const auto& hint = state().breakHint.value();
    content.footerIsHint = hint.has_value();
    content.footer =
        hint.value_or(content.scene == BreakScene::previewing ? std::string(previewFootnote)
                                                              : breakFootnote(model, isFinished, now));
}

void Telling::tellReveal(bool isPrimary, const screen::Celebrating& phase) {
    const auto& reveal = stage.reveal.value();
    const bool isPopped = reveal && reveal->beats(now).popped;
    const bool grew = revealGrew(content.pet, phase.announcement);
    if (grew && !isPopped) {
        content.pet.rests = content.pet.revealed() - 1;
    }
    content.mood = grew && !isPopped ? WumbleMood::idle : WumbleMood::celebrate;
    if (!isPrimary) {
        return;
    }
    content.title = phase.announcement.value_or(std::string(completeForNow));
    content.subtitle = state().today.value().revealDetail();
    content.showsDots = true;
    content.controls = {BreakControl::backToWork};
    content.tag = grew ? tagText(state().today.value()) : "";
    if (const auto streak = model.streak(); streak >= wumble::WumbleLife::streakChipDays) {
        content.streak = streak;
    }
}

void Telling::tellPreviewDone(bool isPrimary) {
    content.mood = WumbleMood::celebrate;
    if (isPrimary) {
        content.title = previewDoneTitle;
        content.subtitle = previewDoneText;
        content.controls = {BreakControl::backToWork};
    }
}

BreakScene sceneOf(const std::optional<BreakScreenPhase>& phase,
                   const std::optional<wumble::ActiveBreak>& shown, wumble::Date now, bool holds) {
    if (!phase) {
        return BreakScene::empty;
    }
    return wumble::match(
        *phase, [](const screen::Celebrating&) { return BreakScene::celebrating; },
        [](const screen::PreviewDone&) { return BreakScene::previewDone; },
        [&](const screen::Resting&) {
            if (shown && shown->isPreview()) {
                return BreakScene::previewing;
            }
            return shown && isFinished(*shown, now, holds) ? BreakScene::finished : BreakScene::running;
        });
}

} // namespace

std::string_view title(BreakControl control) { return wumble::rowOf(controlTitles, control).title; }

std::optional<BreakScreenPhase> shownPhase(const AppModel& model, const BreakStage& stage) {
    return stage.leftAt.value() ? stage.lastPhase : model.state().breakScreen.value();
}

std::optional<wumble::ActiveBreak> currentBreak(const AppModel& model, const BreakStage& stage) {
    if (const auto* onBreak = std::get_if<wumble::phase::OnBreak>(&model.engine().phase())) {
        return onBreak->activeBreak;
    }
    return stage.leftAt.value() ? stage.shownBreak : std::nullopt;
}

bool isBetweenScenes(const AppModel& model, const BreakStage& stage) {
    const auto phase = shownPhase(model, stage);
    return !phase || (std::holds_alternative<screen::Resting>(*phase) && !currentBreak(model, stage));
}

bool isFinished(const wumble::ActiveBreak& shown, wumble::Date now, bool holdUntilEndPressed) {
    if (shown.isPreview()) {
        return false;
    }
    return shown.awaitingEnd || (now >= shown.endsAt() && holdUntilEndPressed);
}

std::string tagText(const wumble::WumbleDay& today) {
    const auto spaced = [](std::string text) {
        std::ranges::replace(text, '-', ' ');
        return text;
    };
    const auto& traits = today.traits;
    const std::array<std::string, 6> things{
        "eyes",
        "expression · " + wumble::lowerCased(wumble::name(traits.personality)),
        "paws",
        traits.cheeks == wumble::WumbleCheeks::freckles ? "freckles" : "blush",
        spaced(std::string(enumText(traits.accessory))),
        std::string(enumText(traits.keepsake)),
    };
    const auto step = static_cast<std::size_t>(today.revealed());
    return step > 0 && step <= things.size() ? "new · " + things.at(step - 1) : "";
}

BreakContent breakContent(const AppModel& model, const BreakStage& stage, bool isPrimary, wumble::Date now) {
    const auto phase = shownPhase(model, stage);
    const auto shown = currentBreak(model, stage);
    Telling telling{.model = model, .stage = stage, .now = now, .content = {}};
    BreakContent& content = telling.content;
    content.scene = sceneOf(phase, shown, now, telling.settings().holdUntilEndPressed);
    content.pet = model.state().today.value();
    content.isPrimary = isPrimary;
    content.petSize = isPrimary ? primaryPet : otherPet;
    telling.tellClock(isPrimary, shown);
    if (phase) {
        wumble::match(
            *phase, [&](const screen::Celebrating& reveal) { telling.tellReveal(isPrimary, reveal); },
            [&](const screen::Resting&) { telling.tellRest(isPrimary, shown); },
            [&](const screen::PreviewDone&) { telling.tellPreviewDone(isPrimary); });
    }
    return content;
}

} // namespace quietlark
