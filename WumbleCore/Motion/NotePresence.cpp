#include "WumbleCore/Motion/NotePresence.h"

namespace wumble {

NotePose NotePresence::pose(Date now, bool reduceMotion) const {
    if (left) {
        return NotePose::leaving(now - *left, entrance, reduceMotion);
    }
    const bool isArriving = now >= arrived && now < movingUntil();
    return isArriving ? NotePose::arriving(now - arrived, covering, entrance, reduceMotion) : NotePose{};
}

void NotePresence::leave(Date now) {
    if (!left) {
        left = now;
    }
}

Date NotePresence::movingUntil() const {
    return left ? *left + exitLength(entrance) : arrived + arrivalLength(entrance);
}

} // namespace wumble
