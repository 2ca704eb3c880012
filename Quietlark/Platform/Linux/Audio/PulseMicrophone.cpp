#include "Quietlark/Platform/Linux/Audio/PulseMicrophone.h"

#include "Quietlark/Platform/Linux/Audio/CaptureHardware.h"
#include "Quietlark/Platform/Linux/Audio/GLibLoop.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <pulse/glib-mainloop.h>
#include <pulse/pulseaudio.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace quietlark {

namespace {

/// Programs that open a source only to show how loud it is.
constexpr std::array<std::string_view, 6> volumeControls{
    "org.PulseAudio.pavucontrol", "org.gnome.VolumeControl", "org.kde.kmixd", "org.kde.kmix",
    "org.kde.plasma-pa",          "org.mate.VolumeControl"};

std::optional<std::string> text(const pa_proplist* properties, const char* key) {
    const char* value = pa_proplist_gets(properties, key);
    return value == nullptr || *value == '\0' ? std::nullopt : std::optional<std::string>(value);
}

bool isSetTo(const pa_proplist* properties, const char* key, std::string_view value) {
    return text(properties, key) == value;
}

int number(const std::optional<std::string>& text) {
    int value = 0;
    if (text) {
        std::from_chars(text->data(), text->data() + text->size(), value);
    }
    return value;
}

SoundClient program(const pa_proplist* properties) {
    const auto sandboxID = text(properties, "pipewire.access.portal.app_id");
    return {.pid = number(text(properties, PA_PROP_APPLICATION_PROCESS_ID)),
            .appID = sandboxID ? sandboxID : text(properties, PA_PROP_APPLICATION_ID),
            .name = text(properties, PA_PROP_APPLICATION_NAME),
            .binary = text(properties, PA_PROP_APPLICATION_PROCESS_BINARY),
            .isSandboxed = sandboxID.has_value()};
}

bool isLevelMeter(const pa_source_output_info& stream) {
    const auto id = text(stream.proplist, PA_PROP_APPLICATION_ID);
    return (stream.resample_method != nullptr && std::string_view(stream.resample_method) == "peaks") ||
           isSetTo(stream.proplist, "resample.peaks", "true") ||
           isSetTo(stream.proplist, PA_PROP_MEDIA_NAME, "Peak detect") ||
           (id && std::ranges::find(volumeControls, *id) != volumeControls.end());
}

template <class Record>
bool assignIfChanged(std::map<std::uint32_t, Record>& records, std::uint32_t index, Record record) {
    const auto [place, isNew] = records.try_emplace(index, record);
    return isNew || std::exchange(place->second, record) != record;
}

} // namespace

/// What the library calls; each has the object as its last argument.
struct PulseMicrophone::Callbacks {
    static PulseMicrophone& object(void* data) { return *static_cast<PulseMicrophone*>(data); }

    static void state(pa_context*, void* data) { object(data).contextChanged(); }

    static void event(pa_context*, pa_subscription_event_type_t type, std::uint32_t index, void* data) {
        object(data).changed(type, index);
    }

    /// One of a list; `end` is positive after the last and negative on failure.
    template <class Info> static void listed(pa_context*, const Info* info, int end, void* data) {
        if (end == 0) {
            object(data).told(*info);
        } else {
            object(data).listEnded();
        }
    }

    template <class Info> static void one(pa_context*, const Info* info, int end, void* data) {
        if (end == 0) {
            object(data).told(*info);
        }
    }

    static bool isAsked(pa_operation* operation) {
        if (operation != nullptr) {
            pa_operation_unref(operation);
        }
        return operation != nullptr;
    }
};

PulseMicrophone::PulseMicrophone(AppIdentity& identity, std::filesystem::path soundFolder)
    : identity_(identity), soundFolder_(std::move(soundFolder)),
      mainLoop_(runsOnGLib() ? pa_glib_mainloop_new(nullptr) : nullptr) {}

PulseMicrophone::~PulseMicrophone() {
    disconnect();
    if (mainLoop_ != nullptr) {
        pa_glib_mainloop_free(mainLoop_);
    }
}

bool PulseMicrophone::ready() const { return mainLoop_ == nullptr || patience_.isOver(); }

void PulseMicrophone::refresh(double uptime) {
    if (patience_.wantsConnection(uptime, mainLoop_ != nullptr && context_ == nullptr)) {
        connect();
    }
}

bool PulseMicrophone::physicalMicrophoneRunning() const { return captureHardwareRuns(soundFolder_); }

void PulseMicrophone::connect() {
    context_ = pa_context_new(pa_glib_mainloop_get_api(mainLoop_), "Quietlark");
    pa_context_set_state_callback(context_, Callbacks::state, this);
    pa_context_set_subscribe_callback(context_, Callbacks::event, this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        patience_.noteAnswer();
        disconnect();
    }
}

void PulseMicrophone::disconnect() {
    if (context_ != nullptr) {
        pa_context_set_state_callback(context_, nullptr, nullptr);
        pa_context_set_subscribe_callback(context_, nullptr, nullptr);
        pa_context_disconnect(context_);
        pa_context_unref(std::exchange(context_, nullptr));
    }
    recordings_ = {};
    apps_.reset();
}

void PulseMicrophone::contextChanged() {
    const pa_context_state_t state = pa_context_get_state(context_);
    if (state == PA_CONTEXT_READY) {
        askForEverything();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        patience_.noteAnswer();
        disconnect();
    }
}

void PulseMicrophone::askForEverything() {
    constexpr auto followed = static_cast<pa_subscription_mask_t>(
        PA_SUBSCRIPTION_MASK_SOURCE_OUTPUT | PA_SUBSCRIPTION_MASK_CLIENT | PA_SUBSCRIPTION_MASK_SOURCE);
    listsAwaited_ = 3;
    const bool isAsked =
        Callbacks::isAsked(pa_context_subscribe(context_, followed, nullptr, nullptr)) &&
        Callbacks::isAsked(
            pa_context_get_client_info_list(context_, Callbacks::listed<pa_client_info>, this)) &&
        Callbacks::isAsked(
            pa_context_get_source_info_list(context_, Callbacks::listed<pa_source_info>, this)) &&
        Callbacks::isAsked(
            pa_context_get_source_output_info_list(context_, Callbacks::listed<pa_source_output_info>, this));
    if (!isAsked) {
        disconnect();
    }
}

void PulseMicrophone::changed(unsigned event, std::uint32_t index) {
    const unsigned facility = event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK;
    if ((event & PA_SUBSCRIPTION_EVENT_TYPE_MASK) == PA_SUBSCRIPTION_EVENT_REMOVE) {
        removed(facility, index);
    } else if (facility == PA_SUBSCRIPTION_EVENT_CLIENT) {
        Callbacks::isAsked(pa_context_get_client_info(context_, index, Callbacks::one<pa_client_info>, this));
    } else if (facility == PA_SUBSCRIPTION_EVENT_SOURCE) {
        Callbacks::isAsked(
            pa_context_get_source_info_by_index(context_, index, Callbacks::one<pa_source_info>, this));
    } else if (facility == PA_SUBSCRIPTION_EVENT_SOURCE_OUTPUT) {
        Callbacks::isAsked(
            pa_context_get_source_output_info(context_, index, Callbacks::one<pa_source_output_info>, this));
    }
}

void PulseMicrophone::removed(unsigned facility, std::uint32_t index) {
    if (facility == PA_SUBSCRIPTION_EVENT_CLIENT) {
        recordings_.clients.erase(index);
    } else if (facility == PA_SUBSCRIPTION_EVENT_SOURCE) {
        recordings_.isMonitor.erase(index);
    } else if (facility == PA_SUBSCRIPTION_EVENT_SOURCE_OUTPUT) {
        recordings_.streams.erase(index);
    }
    findApps();
}

void PulseMicrophone::told(const pa_client_info& client) {
    if (assignIfChanged(recordings_.clients, client.index, program(client.proplist))) {
        findApps();
    }
}

void PulseMicrophone::told(const pa_source_info& source) {
    const bool isMonitor = source.monitor_of_sink != PA_INVALID_INDEX ||
                           isSetTo(source.proplist, PA_PROP_DEVICE_CLASS, "monitor");
    if (assignIfChanged(recordings_.isMonitor, source.index, isMonitor)) {
        findApps();
    }
}

void PulseMicrophone::told(const pa_source_output_info& stream) {
    const RecordingStream record{.client = stream.client,
                                 .source = stream.source,
                                 .isPaused = stream.corked != 0,
                                 .isLevelMeter = isLevelMeter(stream),
                                 .takesWhatIsPlayed = isSetTo(stream.proplist, "stream.capture.sink", "true"),
                                 .isPartOfFilter = text(stream.proplist, "node.link-group").has_value(),
                                 .program = program(stream.proplist)};
    if (assignIfChanged(recordings_.streams, stream.index, record)) {
        findApps();
    }
}

void PulseMicrophone::listEnded() {
    if (--listsAwaited_ == 0) {
        patience_.noteAnswer();
        findApps();
    }
}

void PulseMicrophone::findApps() {
    if (listsAwaited_ > 0) {
        return;
    }
    apps_.emplace();
    for (const AppHints& hints : recordings_.listening(getpid())) {
        AppRef app = identity_.identify(hints);
        if (std::ranges::find(*apps_, app) == apps_->end()) {
            apps_->push_back(std::move(app));
        }
    }
}

} // namespace quietlark
