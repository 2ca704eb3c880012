#pragma once

#include "Quietlark/Surfaces/Notes/FadingSurface.h"
#include "Quietlark/Surfaces/SurfaceContext.h"
#include "WumbleCore/Motion/NotePresence.h"
#include "WumbleCore/Words/Toast.h"

#include <QProperty>

#include <functional>
#include <memory>
#include <optional>

namespace quietlark {

/// When a note came and went, told to whoever draws it.
using ObservedPresence = QProperty<wumble::NotePresence>;

/// What lets the pointer through to a note that otherwise lets clicks pass.
class CardReach {
public:
    virtual ~CardReach() = default;

    /// Looks for the pointer no more.
    virtual void stop() = 0;
};

/// One note on one screen.
struct Card {
    std::unique_ptr<HostedSurface> surface;
    std::shared_ptr<ObservedPresence> presence;
    std::unique_ptr<FadingSurface> veil; ///< the dimming behind a nudge; absent: none
    std::optional<Screen> screen;
    std::shared_ptr<CardReach> reach; ///< absent: none

    /// Puts it on the screen with its veil, or takes both away for as long as others may see it.
    void setMapped(bool mayShow) const;
};

/// Lets a note leave: it takes its leave as it came, then it is gone with its veil.
void leave(Card card, MainLoop& loop);

/// Takes a note away from under the one that has just landed on it.
void giveWay(Card card, MainLoop& loop);

/// What a note tells to whoever put it up. Both may be called for as long as the note is there.
struct NoteCalls {
    std::function<void()> close; ///< the person wants it gone
    std::function<void(bool inside)> hover;
};

/// Makes the card of a toast in the middle of a screen, placed but not mapped. `old` is the card on the same screen, or
/// the only one, that it lands on; absent: none. A veil that it takes over from `old` is its own business.
using NudgeCardFactory =
    std::function<Card(const wumble::Toast& toast, const Screen& screen, Card* old, const NoteCalls& calls)>;

} // namespace quietlark
