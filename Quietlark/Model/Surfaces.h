#pragma once

#include "Quietlark/Model/BreakScreenPhase.h"
#include "WumbleCore/Engine/ActiveBreak.h"
#include "WumbleCore/Words/Toast.h"

#include <optional>

namespace quietlark {

/// The item in the tray and its popover.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Brings icon, title and label up to date. Called about once a second; nothing is written that stands.
    virtual void refresh() = 0;

    virtual bool isPopoverShown() const = 0;
    virtual void closePopover() = 0;
};

/// A small window that a recording of the screen may have to leave out.
class CaptureSensitive {
public:
    virtual ~CaptureSensitive() = default;

    /// Looks anew at whether it may be seen by those who watch the screen. Called on any change of who does.
    virtual void updateSharing() = 0;
};

/// The card that announces a break some time before it.
class HeadsUp : public CaptureSensitive {
public:
    virtual void show() = 0;

    /// Lets it leave; nothing happens when it isn't there.
    virtual void hide() = 0;

    /// Turns the card into the reply to what was pressed on it.
    virtual void answer(const wumble::Toast& toast) = 0;
};

/// The pill of the last seconds.
class Countdown : public CaptureSensitive {
public:
    virtual void show() = 0;
    virtual void hide() = 0;

    /// Gives the pill its size back where something took it.
    virtual void restoreSize() = 0;
};

/// Messages that come and go on their own.
class Toasts : public CaptureSensitive {
public:
    /// Takes the place of whatever stands in the toast's placement.
    virtual void show(const wumble::Toast& toast) = 0;
};

/// The screen that takes over the displays for a break.
class BreakScreenPresenting {
public:
    virtual ~BreakScreenPresenting() = default;

    /// Puts it up, or rebuilds it for another break.
    virtual void show(const wumble::ActiveBreak& activeBreak) = 0;

    /// Lets it leave. `showing`: what it goes on drawing meanwhile.
    virtual void hide(const std::optional<BreakScreenPhase>& showing) = 0;
};

/// What there is to be seen. Any of them may be missing: the model then runs without it.
struct Surfaces {
    StatusItem* statusItem = nullptr;
    HeadsUp* headsUp = nullptr;
    BreakScreenPresenting* overlay = nullptr;
    Toasts* toasts = nullptr;
    Countdown* countdown = nullptr;
};

} // namespace quietlark
