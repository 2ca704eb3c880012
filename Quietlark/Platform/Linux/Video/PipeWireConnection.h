#pragma once

#include "Quietlark/Platform/Linux/ServerPatience.h"
#include "Quietlark/Platform/Linux/Video/VideoGraph.h"

#include <functional>
#include <memory>

class QSocketNotifier;
struct pw_context;
struct pw_core;
struct pw_loop;
struct pw_registry;

namespace quietlark {

/// Follows the video part of PipeWire's graph by its announcements. A daemon that is missing or has ended is looked
/// for again every few seconds; one that has stopped answering is never waited for.
class PipeWireConnection {
public:
    /// `changed` is called on the main thread after each change of `graph` or `isConnected`.
    explicit PipeWireConnection(std::function<void()> changed);
    ~PipeWireConnection();
    PipeWireConnection(const PipeWireConnection&) = delete;
    PipeWireConnection& operator=(const PipeWireConnection&) = delete;

    /// Connects where there is no connection and the last try is long enough ago.
    void refresh(double uptime);

    /// Whether the first answers have come, or none will.
    bool ready() const;

    bool isConnected() const { return core_ != nullptr; }

    /// Absent until the daemon has told all of it.
    const VideoGraph* graph() const { return isKnown_ ? &graph_ : nullptr; }

private:
    struct Events;
    struct Bound;

    void connect();
    void disconnect();
    void iterate();
    void appeared(std::uint32_t id, const char* type, VideoProperties properties);
    void disappeared(std::uint32_t id);
    void follow(std::uint32_t id, const char* type);
    void followClientOf(const VideoProperties& node);
    void synchronized(int sequence);

    std::function<void()> changed_;
    pw_loop* loop_ = nullptr;
    pw_context* context_ = nullptr;
    std::unique_ptr<QSocketNotifier> notifier_;
    pw_core* core_ = nullptr;
    pw_registry* registry_ = nullptr;
    std::unique_ptr<Events> events_;
    std::map<std::uint32_t, std::unique_ptr<Bound>> bound_;
    ServerPatience patience_;
    bool isLost_ = false;
    bool isChanged_ = false;
    bool isKnown_ = false;
    int announced_ = 0; ///< the question whose answer comes after all that exists was named
    int described_ = 0; ///< the question whose answer comes after all of that was described
    VideoGraph graph_;
};

} // namespace quietlark
