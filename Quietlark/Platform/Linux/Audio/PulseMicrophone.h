#pragma once

#include "Quietlark/Platform/Linux/Audio/Recordings.h"
#include "Quietlark/Platform/Linux/ServerPatience.h"
#include "Quietlark/Platform/Microphone.h"

#include <filesystem>

struct pa_client_info;
struct pa_context;
struct pa_glib_mainloop;
struct pa_source_info;
struct pa_source_output_info;

namespace quietlark {

/// The recordings of the sound server, followed by its own announcements. A server that is missing or has ended
/// is looked for again every few seconds, and never started.
class PulseMicrophone final : public Microphone {
public:
    /// `identity` must outlive it. `soundFolder` is the kernel's.
    explicit PulseMicrophone(AppIdentity& identity, std::filesystem::path soundFolder = "/proc/asound");
    ~PulseMicrophone() override;
    PulseMicrophone(const PulseMicrophone&) = delete;
    PulseMicrophone& operator=(const PulseMicrophone&) = delete;

    bool ready() const override;
    void refresh(double uptime) override;
    std::optional<std::vector<AppRef>> recordingApps() const override { return apps_; }
    bool physicalMicrophoneRunning() const override;

private:
    struct Callbacks;

    void connect();
    void disconnect();
    void contextChanged();
    void askForEverything();
    void changed(unsigned event, std::uint32_t index);
    void removed(unsigned facility, std::uint32_t index);
    void told(const pa_client_info& client);
    void told(const pa_source_info& source);
    void told(const pa_source_output_info& stream);
    void listEnded();
    void findApps();

    AppIdentity& identity_;
    std::filesystem::path soundFolder_;
    pa_glib_mainloop* mainLoop_ =
        nullptr; ///< absent where the event loop isn't the one that the library knows
    pa_context* context_ = nullptr;
    ServerPatience patience_;
    int listsAwaited_ = 0; ///< nothing is known before all have come
    Recordings recordings_;
    std::optional<std::vector<AppRef>> apps_;
};

} // namespace quietlark
