#include "Quietlark/Platform/Linux/Audio/PulseSoundOutput.h"

#include "Quietlark/Platform/Linux/Audio/GLibLoop.h"

#include <algorithm>
#include <cmath>
#include <pulse/glib-mainloop.h>
#include <pulse/pulseaudio.h>
#include <pulse/rtclock.h>
#include <utility>

namespace quietlark {

namespace {

constexpr pa_sample_spec format{.format = PA_SAMPLE_S16NE, .rate = 44'100, .channels = 1};

/// A sound that couldn't begin by then has missed its moment.
constexpr double longestConnecting = 3;

/// A server that has nowhere to play a sound keeps it waiting; it is taken back this long after it should have ended.
constexpr pa_usec_t longestDelay = 3 * PA_USEC_PER_SEC;

/// Sounds often come in pairs; the connection waits this long for the second.
constexpr double silenceBeforeDisconnecting = 1;

std::vector<std::int16_t> atVolume(const std::vector<std::int16_t>& samples, double volume) {
    std::vector<std::int16_t> result(samples.size());
    std::ranges::transform(samples, result.begin(), [volume](std::int16_t sample) {
        return static_cast<std::int16_t>(std::lround(sample * volume));
    });
    return result;
}

} // namespace

struct PulseSoundOutput::Sound {
    PulseSoundOutput& output;
    std::vector<std::int16_t> samples;
    pa_stream* stream = nullptr;
    pa_operation* draining = nullptr;
    pa_time_event* deadline = nullptr;
};

PulseSoundOutput::PulseSoundOutput(MainLoop& loop)
    : loop_(loop), mainLoop_(runsOnGLib() ? pa_glib_mainloop_new(nullptr) : nullptr) {}

PulseSoundOutput::~PulseSoundOutput() {
    *isAlive_ = false;
    disconnect();
    if (mainLoop_ != nullptr) {
        pa_glib_mainloop_free(mainLoop_);
    }
}

void PulseSoundOutput::play(const Samples& samples, double volume) {
    if (!(volume > 0) || mainLoop_ == nullptr || samples->empty()) {
        return;
    }
    const bool isReady = context_ != nullptr && pa_context_get_state(context_) == PA_CONTEXT_READY;
    if (context_ != nullptr && !isReady && loop_.uptime() - connectingSince_ > longestConnecting) {
        disconnect();
    }
    sounds_.push_back(std::make_unique<Sound>(Sound{*this, atVolume(*samples, std::min(volume, 1.0))}));
    if (context_ == nullptr) {
        connect();
    } else if (isReady) {
        begin(*sounds_.back());
    }
}

void PulseSoundOutput::connect() {
    connectingSince_ = loop_.uptime();
    context_ = pa_context_new(pa_glib_mainloop_get_api(mainLoop_), "Quietlark");
    pa_context_set_state_callback(
        context_, [](pa_context*, void* output) { static_cast<PulseSoundOutput*>(output)->contextChanged(); },
        this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        disconnect();
    }
}

void PulseSoundOutput::disconnect() {
    for (const auto& sound : sounds_) {
        close(*sound);
    }
    sounds_.clear();
    if (context_ != nullptr) {
        pa_context_set_state_callback(context_, nullptr, nullptr);
        pa_context_disconnect(context_);
        pa_context_unref(std::exchange(context_, nullptr));
    }
}

void PulseSoundOutput::contextChanged() {
    const pa_context_state_t state = pa_context_get_state(context_);
    if (state == PA_CONTEXT_READY) {
        for (const auto& sound : sounds_) {
            begin(*sound);
        }
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        disconnect();
    }
}

void PulseSoundOutput::begin(Sound& sound) {
    const auto bytes = static_cast<std::uint32_t>(sound.samples.size() * sizeof(std::int16_t));
    setDeadline(sound, pa_bytes_to_usec(bytes, &format));
    sound.stream = pa_stream_new(context_, "Cue", &format, nullptr);
    if (sound.stream == nullptr) {
        return;
    }
    pa_stream_set_state_callback(
        sound.stream,
        [](pa_stream* stream, void* data) {
            Sound& begun = *static_cast<Sound*>(data);
            if (pa_stream_get_state(stream) == PA_STREAM_READY) {
                pa_stream_write(stream, begun.samples.data(), begun.samples.size() * sizeof(std::int16_t),
                                nullptr, 0, PA_SEEK_RELATIVE);
                const auto drained = [](pa_stream*, int, void* ended) {
                    Sound& sounded = *static_cast<Sound*>(ended);
                    pa_operation_unref(std::exchange(sounded.draining, nullptr));
                    sounded.output.end(sounded);
                };
                begun.draining = pa_stream_drain(stream, drained, data);
            } else if (!PA_STREAM_IS_GOOD(pa_stream_get_state(stream))) {
                begun.output.end(begun);
            }
        },
        &sound);
    // The whole of a sound is in the server's hands at once, so that a busy program never makes it stutter.
    constexpr auto asTheServerLikes = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr whole{.maxlength = asTheServerLikes,
                               .tlength = bytes,
                               .prebuf = asTheServerLikes,
                               .minreq = asTheServerLikes,
                               .fragsize = asTheServerLikes};
    pa_stream_connect_playback(sound.stream, nullptr, &whole, PA_STREAM_NOFLAGS, nullptr, nullptr);
}

/// Measured on the clock that the sound itself goes by.
void PulseSoundOutput::setDeadline(Sound& sound, std::uint64_t microseconds) {
    sound.deadline = pa_context_rttime_new(
        context_, pa_rtclock_now() + microseconds + longestDelay,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* late) {
            const Sound& waiting = *static_cast<Sound*>(late);
            waiting.output.end(waiting);
        },
        &sound);
}

void PulseSoundOutput::close(const Sound& sound) {
    if (sound.deadline != nullptr) {
        pa_glib_mainloop_get_api(mainLoop_)->time_free(sound.deadline);
    }
    if (sound.draining != nullptr) {
        pa_operation_cancel(sound.draining);
        pa_operation_unref(sound.draining);
    }
    if (sound.stream != nullptr) {
        pa_stream_set_state_callback(sound.stream, nullptr, nullptr);
        pa_stream_disconnect(sound.stream);
        pa_stream_unref(sound.stream);
    }
}

void PulseSoundOutput::end(const Sound& sound) {
    close(sound);
    std::erase_if(sounds_, [&sound](const auto& other) { return other.get() == &sound; });
    if (sounds_.empty()) {
        loop_.after(silenceBeforeDisconnecting, [this, isAlive = isAlive_] {
            if (*isAlive) {
                disconnectWhenSilent();
            }
        });
    }
}

void PulseSoundOutput::disconnectWhenSilent() {
    if (sounds_.empty()) {
        disconnect();
    }
}

} // namespace quietlark
