#pragma once

#include "Quietlark/Model/SoundPlayer.h"
#include "Quietlark/Platform/SoundOutput.h"

#include <map>

namespace quietlark {

/// Makes each cue when it is first heard, and keeps it.
class CuePlayer final : public SoundPlayer {
public:
    /// The output must outlive it.
    explicit CuePlayer(SoundOutput& output) : output_(output) {}

    void play(wumble::Cue cue, double volume) override;

private:
    SoundOutput& output_;
    std::map<wumble::Cue, SoundOutput::Samples> cache_;
};

} // namespace quietlark
