#include "Quietlark/Platform/Linux/Video/PipeWireConnection.h"

#include <QSocketNotifier>

#include <cerrno>
#include <cstdlib>
#include <pipewire/impl.h>
#include <pipewire/pipewire.h>
#include <string_view>
#include <utility>

namespace quietlark {

namespace {

VideoProperties copied(const spa_dict* properties) {
    VideoProperties result;
    for (std::uint32_t index = 0; properties != nullptr && index < properties->n_items; ++index) {
        const spa_dict_item& item = properties->items[index];
        if (item.key != nullptr && item.value != nullptr) {
            result.insert_or_assign(item.key, item.value);
        }
    }
    return result;
}

bool isVideo(const VideoProperties& node) {
    const auto mediaClass = node.find("media.class");
    return mediaClass != node.end() && mediaClass->second.find("Video") != std::string::npos;
}

std::uint32_t number(const VideoProperties& properties, const char* key) {
    const auto found = properties.find(key);
    return found == properties.end() ? SPA_ID_INVALID
                                     : static_cast<std::uint32_t>(std::atoi(found->second.c_str()));
}

/// Nothing of the person's own client configuration is needed to look on, and parts of it wait for other services.
pw_context* makeContext(pw_loop* loop) {
    pw_properties* settings = pw_properties_new(PW_KEY_CONFIG_NAME, "null", nullptr);
    pw_context* context = pw_context_new(loop, settings, 0);
    if (context != nullptr) {
        pw_context_load_module(context, "libpipewire-module-protocol-native", nullptr, nullptr);
    }
    return context;
}

} // namespace

/// A thing of the graph that tells of its changes.
struct PipeWireConnection::Bound {
    PipeWireConnection& connection;
    std::uint32_t id = 0;
    pw_proxy* proxy = nullptr;
    spa_hook listener{};

    Bound(PipeWireConnection& owner, std::uint32_t number) : connection(owner), id(number) {}
    Bound(const Bound&) = delete;
    Bound& operator=(const Bound&) = delete;
    ~Bound() {
        if (proxy != nullptr) {
            spa_hook_remove(&listener);
            pw_proxy_destroy(proxy);
        }
    }

    void nodeTold(const pw_node_info& info) {
        VideoNode& node = connection.graph_.nodes[id];
        const VideoNode before = node;
        node.isRunning = info.state == PW_NODE_STATE_RUNNING;
        for (auto& [key, value] : copied(info.props)) {
            node.properties.insert_or_assign(key, value);
        }
        connection.isChanged_ |= node != before;
    }

    void clientTold(const pw_client_info& info) {
        VideoProperties& client = connection.graph_.clients[id];
        const VideoProperties before = client;
        for (auto& [key, value] : copied(info.props)) {
            client.insert_or_assign(key, value);
        }
        connection.isChanged_ |= client != before;
    }

    void linkTold(const pw_link_info& info) {
        const VideoLink link{info.output_node_id, info.input_node_id, info.state == PW_LINK_STATE_ACTIVE};
        connection.isChanged_ |= std::exchange(connection.graph_.links[id], link) != link;
    }
};

/// The tables of functions that the library calls.
struct PipeWireConnection::Events {
    spa_hook coreListener{};
    spa_hook registryListener{};
    pw_core_events core{};
    pw_registry_events registry{};
    pw_node_events node{};
    pw_client_events client{};
    pw_link_events link{};

    Events() {
        core.version = PW_VERSION_CORE_EVENTS;
        core.done = [](void* data, std::uint32_t id, int sequence) {
            if (id == PW_ID_CORE) {
                static_cast<PipeWireConnection*>(data)->synchronized(sequence);
            }
        };
        core.error = [](void* data, std::uint32_t id, int, int result, const char*) {
            if (id == PW_ID_CORE && result == -EPIPE) {
                static_cast<PipeWireConnection*>(data)->isLost_ = true;
            }
        };
        registry.version = PW_VERSION_REGISTRY_EVENTS;
        registry.global = [](void* data, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t,
                             const spa_dict* properties) {
            static_cast<PipeWireConnection*>(data)->appeared(id, type, copied(properties));
        };
        registry.global_remove = [](void* data, std::uint32_t id) {
            static_cast<PipeWireConnection*>(data)->disappeared(id);
        };
        node.version = PW_VERSION_NODE_EVENTS;
        node.info = [](void* data, const pw_node_info* info) { static_cast<Bound*>(data)->nodeTold(*info); };
        client.version = PW_VERSION_CLIENT_EVENTS;
        client.info = [](void* data, const pw_client_info* info) {
            static_cast<Bound*>(data)->clientTold(*info);
        };
        link.version = PW_VERSION_LINK_EVENTS;
        link.info = [](void* data, const pw_link_info* info) { static_cast<Bound*>(data)->linkTold(*info); };
    }

    const void* of(std::string_view type) const {
        if (type == PW_TYPE_INTERFACE_Node) {
            return &node;
        }
        return type == PW_TYPE_INTERFACE_Client ? static_cast<const void*>(&client) : &link;
    }
};

PipeWireConnection::PipeWireConnection(std::function<void()> changed) : changed_(std::move(changed)) {
    pw_init(nullptr, nullptr);
    // What the library warns of is how little of it is used here.
    pw_log_set_level(SPA_LOG_LEVEL_ERROR);
    loop_ = pw_loop_new(nullptr);
    pw_loop_enter(loop_);
    context_ = makeContext(loop_);
    notifier_ = std::make_unique<QSocketNotifier>(pw_loop_get_fd(loop_), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { iterate(); });
}

PipeWireConnection::~PipeWireConnection() {
    notifier_.reset();
    disconnect();
    if (context_ != nullptr) {
        pw_context_destroy(context_);
    }
    pw_loop_leave(loop_);
    pw_loop_destroy(loop_);
    pw_deinit();
}

void PipeWireConnection::refresh(double uptime) {
    if (patience_.wantsConnection(uptime, context_ != nullptr && core_ == nullptr)) {
        connect();
    }
}

bool PipeWireConnection::ready() const { return context_ == nullptr || patience_.isOver(); }

void PipeWireConnection::connect() {
    core_ = pw_context_connect(context_, nullptr, 0);
    if (core_ == nullptr) {
        patience_.noteAnswer();
        return;
    }
    events_ = std::make_unique<Events>();
    pw_core_add_listener(core_, &events_->coreListener, &events_->core, this);
    registry_ = pw_core_get_registry(core_, PW_VERSION_REGISTRY, 0);
    pw_registry_add_listener(registry_, &events_->registryListener, &events_->registry, this);
    announced_ = pw_core_sync(core_, PW_ID_CORE, 0);
    described_ = -1;
}

void PipeWireConnection::disconnect() {
    isLost_ = false;
    isKnown_ = false;
    bound_.clear();
    graph_ = {};
    if (core_ != nullptr) {
        spa_hook_remove(&events_->registryListener);
        spa_hook_remove(&events_->coreListener);
        pw_proxy_destroy(reinterpret_cast<pw_proxy*>(std::exchange(registry_, nullptr)));
        pw_core_disconnect(std::exchange(core_, nullptr));
        events_.reset();
    }
}

void PipeWireConnection::iterate() {
    pw_loop_iterate(loop_, 0);
    if (isLost_) {
        patience_.noteAnswer();
        disconnect();
        isChanged_ = true;
    }
    if (std::exchange(isChanged_, false)) {
        changed_();
    }
}

void PipeWireConnection::appeared(std::uint32_t id, const char* type, VideoProperties properties) {
    const std::string_view kind = type;
    if (kind == PW_TYPE_INTERFACE_Client) {
        graph_.clients[id] = std::move(properties);
    } else if (kind == PW_TYPE_INTERFACE_Node && isVideo(properties)) {
        followClientOf(properties);
        graph_.nodes[id].properties = std::move(properties);
        follow(id, type);
    } else if (kind == PW_TYPE_INTERFACE_Link &&
               graph_.nodes.contains(number(properties, PW_KEY_LINK_OUTPUT_NODE))) {
        follow(id, type);
    }
}

void PipeWireConnection::disappeared(std::uint32_t id) {
    bound_.erase(id);
    const std::size_t removed = graph_.nodes.erase(id) + graph_.links.erase(id) + graph_.clients.erase(id);
    isChanged_ |= removed > 0;
}

void PipeWireConnection::follow(std::uint32_t id, const char* type) {
    auto bound = std::make_unique<Bound>(*this, id);
    bound->proxy = static_cast<pw_proxy*>(pw_registry_bind(registry_, id, type, 3, 0));
    if (bound->proxy == nullptr) {
        return;
    }
    pw_proxy_add_object_listener(bound->proxy, &bound->listener, events_->of(type), bound.get());
    bound_[id] = std::move(bound);
}

void PipeWireConnection::followClientOf(const VideoProperties& node) {
    const std::uint32_t client = number(node, PW_KEY_CLIENT_ID);
    if (graph_.clients.contains(client) && !bound_.contains(client)) {
        follow(client, PW_TYPE_INTERFACE_Client);
    }
}

void PipeWireConnection::synchronized(int sequence) {
    if (sequence == announced_) {
        described_ = pw_core_sync(core_, PW_ID_CORE, sequence);
    } else if (sequence == described_) {
        isKnown_ = true;
        patience_.noteAnswer();
        isChanged_ = true;
    }
}

} // namespace quietlark
