#include "Quietlark/Platform/Linux/Hosting/DisplayPlugin.h"

#include <QByteArray>

#include <chrono>
#include <future>
#include <system_error>
#include <thread>

#include <xcb/xcb.h>

namespace quietlark {

namespace {

constexpr std::chrono::seconds patience{3};

bool connects() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool works = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return works;
}

/// On a thread of its own, since a server that hangs would hang its caller.
bool serverAnswers() {
    std::packaged_task<bool()> attempt(connects);
    auto answer = attempt.get_future();
    try {
        std::thread(std::move(attempt)).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return answer.wait_for(patience) == std::future_status::ready && answer.get();
}

} // namespace

void chooseDisplayPlugin() {
    const bool isUnseenByWish = qgetenv("QT_QPA_PLATFORM").startsWith("offscreen");
    if (isUnseenByWish) {
        return;
    }
    const bool hasServer = !qEnvironmentVariableIsEmpty("DISPLAY") && serverAnswers();
    qputenv("QT_QPA_PLATFORM", hasServer ? "xcb" : "offscreen");
}

} // namespace quietlark
