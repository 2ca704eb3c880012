#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Platform/SoundOutput.h"

#include <cstdint>
#include <list>
#include <memory>

struct pa_context;
struct pa_glib_mainloop;

namespace quietlark {

/// Plays through the sound server, to which it is connected only while something sounds: each sound is a stream of
/// its own, and with the last one the connection goes too.
class PulseSoundOutput final : public SoundOutput {
public:
    /// The loop must outlive it.
    explicit PulseSoundOutput(MainLoop& loop);
    ~PulseSoundOutput() override;
    PulseSoundOutput(const PulseSoundOutput&) = delete;
    PulseSoundOutput& operator=(const PulseSoundOutput&) = delete;

    void play(const Samples& samples, double volume) override;

    /// Whether there is a connection: something sounds, or has just ended.
    bool isConnected() const { return context_ != nullptr; }

private:
    struct Sound;

    void connect();
    void disconnect();
    void contextChanged();
    void begin(Sound& sound);
    void setDeadline(Sound& sound, std::uint64_t microseconds);
    void close(const Sound& sound);
    void end(const Sound& sound);
    void disconnectWhenSilent();

    MainLoop& loop_;
    pa_glib_mainloop* mainLoop_ =
        nullptr; ///< absent where the event loop isn't the one that the library knows
    pa_context* context_ = nullptr;
    double connectingSince_ = 0; ///< uptime
    std::list<std::unique_ptr<Sound>> sounds_;
    std::shared_ptr<bool> isAlive_ = std::make_shared<bool>(true);
};

} // namespace quietlark
