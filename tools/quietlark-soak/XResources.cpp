#include "tools/quietlark-soak/XResources.h"

#include "Quietlark/Platform/Linux/X11/X11Server.h"

#include <cstdint>
#include <memory>
#include <unistd.h>
#include <vector>

#include <xcb/res.h>

namespace quietlark::soak {

namespace {

template <class Reply> std::unique_ptr<Reply, X11Free> owned(Reply* reply) {
    return std::unique_ptr<Reply, X11Free>(reply);
}

using Connection = std::unique_ptr<xcb_connection_t, X11Disconnect>;

/// The first resource numbers of this process's connections, but for the one that asks.
std::vector<std::uint32_t> ownClients(xcb_connection_t* server) {
    const xcb_res_client_id_spec_t everybody{0, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto reply = owned(
        xcb_res_query_client_ids_reply(server, xcb_res_query_client_ids(server, 1, &everybody), nullptr));
    const std::uint32_t asking = xcb_get_setup(server)->resource_id_base;
    std::vector<std::uint32_t> clients;
    if (!reply) {
        return clients;
    }
    for (auto id = xcb_res_query_client_ids_ids_iterator(reply.get()); id.rem > 0;
         xcb_res_client_id_value_next(&id)) {
        const bool isOwn = xcb_res_client_id_value_value_length(id.data) > 0 &&
                           *xcb_res_client_id_value_value(id.data) == static_cast<std::uint32_t>(getpid());
        if (isOwn && id.data->spec.client != asking) {
            clients.push_back(id.data->spec.client);
        }
    }
    return clients;
}

std::string nameOf(xcb_connection_t* server, xcb_atom_t atom) {
    const auto reply = owned(xcb_get_atom_name_reply(server, xcb_get_atom_name(server, atom), nullptr));
    if (!reply) {
        return "unknown";
    }
    return {xcb_get_atom_name_name(reply.get()),
            static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get()))};
}

} // namespace

std::map<std::string, long> ownXResources() {
    const Connection server(xcb_connect(nullptr, nullptr));
    std::map<std::string, long> held;
    if (xcb_connection_has_error(server.get()) != 0) {
        return held;
    }
    for (const std::uint32_t client : ownClients(server.get())) {
        ++held["connection"];
        const auto reply = owned(xcb_res_query_client_resources_reply(
            server.get(), xcb_res_query_client_resources(server.get(), client), nullptr));
        if (!reply) {
            continue;
        }
        for (auto type = xcb_res_query_client_resources_types_iterator(reply.get()); type.rem > 0;
             xcb_res_type_next(&type)) {
            held[nameOf(server.get(), type.data->resource_type)] += type.data->count;
        }
    }
    return held;
}

} // namespace quietlark::soak
