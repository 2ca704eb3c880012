#pragma once

#include "WumbleCore/Motion/CueSynthesis.h"

namespace quietlark {

class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// Plays the cue beside whatever plays already. `volume`: 0 to 1; 0 or less plays nothing. Silent where there
    /// is no sound.
    virtual void play(wumble::Cue cue, double volume) = 0;
};

} // namespace quietlark
