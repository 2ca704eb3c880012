#include "Quietlark/Platform/Linux/DBus/BusGreeting.h"

#include "WumbleCore/Storage/FileDescriptor.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quietlark::BusGreeting {

namespace {

/// The name of a socket as the system takes it; an abstract one begins with a zero byte.
std::optional<QByteArray> socketName(const QString& place) {
    const QString kind = QStringLiteral("unix:");
    if (!place.startsWith(kind)) {
        return std::nullopt;
    }
    for (const QString& pair : place.mid(kind.size()).split(QLatin1Char(','))) {
        const QByteArray value = QByteArray::fromPercentEncoding(pair.section(QLatin1Char('='), 1).toUtf8());
        if (pair.startsWith(QStringLiteral("path="))) {
            return value;
        }
        if (pair.startsWith(QStringLiteral("abstract="))) {
            return '\0' + value;
        }
    }
    return std::nullopt;
}

/// Whether something can be read before it is time to stop.
bool isReadable(int socket, int stop) {
    std::array<pollfd, 2> watched{
        {{.fd = socket, .events = POLLIN, .revents = 0}, {.fd = stop, .events = POLLIN, .revents = 0}}};
    return ::poll(watched.data(), watched.size(), -1) > 0 && watched[1].revents == 0;
}

bool isSocketAnswered(const QByteArray& name, int stop) {
    sockaddr_un place{.sun_family = AF_UNIX, .sun_path = {}};
    if (name.size() >= static_cast<qsizetype>(sizeof place.sun_path)) {
        return false;
    }
    std::ranges::copy(name, place.sun_path);
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size()));
    const wumble::FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket.isOpen() || ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&place), length) != 0) {
        return false;
    }
    // The first words of every connection: a zero byte, then who one is.
    const QByteArray words = '\0' + QByteArrayLiteral("AUTH EXTERNAL ") +
                             QByteArray::number(::getuid()).toHex() + QByteArrayLiteral("\r\n");
    std::array<char, 1> answer{};
    return ::send(socket.get(), words.data(), static_cast<std::size_t>(words.size()), MSG_NOSIGNAL) ==
               words.size() &&
           isReadable(socket.get(), stop) && ::recv(socket.get(), answer.data(), answer.size(), 0) > 0;
}

} // namespace

bool isAnswered(const QString& address, int stop) {
    const QStringList places = address.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    return std::ranges::any_of(places, [stop](const QString& place) {
        const auto name = socketName(place);
        return !name || isSocketAnswered(*name, stop);
    });
}

} // namespace quietlark::BusGreeting
