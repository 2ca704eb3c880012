#include "Quietlark/Platform/Linux/DBus/Bus.h"

#include "Quietlark/Platform/Linux/DBus/BusGreeting.h"
#include "WumbleCore/Storage/FileDescriptor.h"

#include <QCoreApplication>
#include <QDBusPendingCall>
#include <QFileInfo>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <sys/eventfd.h>
#include <thread>
#include <utility>

namespace quietlark {

namespace {

constexpr double secondsBetweenAttempts = 5;

/// A bus that said its first word may stand still before its second, and then nobody waits for that.
constexpr double longestFarewell = 1;

using Clock = std::chrono::steady_clock;

QDBusConnection noConnection() { return QDBusConnection(QStringLiteral("quietlark-none")); }

QString nextConnectionName() {
    static std::atomic<int> count = 0;
    return QStringLiteral("quietlark-%1").arg(++count);
}

} // namespace

/// A daemon that doesn't answer its greeting holds whoever connects for as long as it likes, so that is done
/// on a thread of its own. Qt has one thread for the greetings of all buses, those of its own accessibility among
/// them: it is told only of a bus that answers.
struct Bus::Attempt {
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<QDBusConnection> made; ///< absent where nobody answered
    bool isOver = false;
    bool isGivenUp = false;
    wumble::FileDescriptor stop{::eventfd(0, EFD_CLOEXEC)}; ///< ends the wait for an answer
    Bus* bus = nullptr;                                     ///< who still waits for it; main thread only

    bool waitFor(double seconds) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::duration<double>(seconds), [this] { return isOver; });
    }

    /// On its own thread. The main one is told only while it lasts.
    void make(const QString& address, const std::function<void()>& arrive) {
        std::optional<QDBusConnection> connection;
        if (BusGreeting::isAnswered(address, stop.get())) {
            connection = QDBusConnection::connectToBus(address, nextConnectionName());
        }
        const std::scoped_lock lock(mutex);
        made = std::move(connection);
        isOver = true;
        if (!isGivenUp) {
            QMetaObject::invokeMethod(QCoreApplication::instance(), arrive, Qt::QueuedConnection);
        }
        changed.notify_all();
    }

    /// What it made by then is let go. Qt may be on its way out after this.
    void giveUp() {
        {
            const std::scoped_lock lock(mutex);
            isGivenUp = true;
        }
        bus = nullptr;
        ::eventfd_write(stop.get(), 1);
        if (waitFor(longestFarewell) && made) {
            QDBusConnection::disconnectFromBus(made->name());
            made.reset();
        }
    }
};

Bus::Bus(QString address) : address_(std::move(address)), connection_(noConnection()) {
    if (address_.isEmpty()) {
        settled_ = true;
    } else {
        beginAttempt();
    }
}

Bus::~Bus() {
    if (attempt_) {
        attempt_->giveUp();
    }
    if (connected_) {
        QDBusConnection::disconnectFromBus(connection_.name());
    }
}

QString Bus::sessionAddress() {
    QString named = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (named.isEmpty() && QFileInfo::exists(socket)) {
        return QStringLiteral("unix:path=") + socket;
    }
    return named;
}

QString Bus::systemAddress() {
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                                QStringLiteral("unix:path=/run/dbus/system_bus_socket"));
}

void Bus::beginAttempt() {
    attempt_ = std::make_shared<Attempt>();
    attempt_->bus = this;
    std::thread([attempt = attempt_, address = address_] {
        attempt->make(address, [attempt] {
            if (attempt->bus != nullptr) {
                attempt->bus->takeAttempt();
            }
        });
    }).detach();
}

void Bus::takeAttempt() {
    const auto made = std::exchange(attempt_->made, std::nullopt);
    attempt_->bus = nullptr;
    attempt_.reset();
    settled_ = true;
    if (!made) {
        return;
    }
    if (!made->isConnected()) {
        QDBusConnection::disconnectFromBus(made->name());
        return;
    }
    connection_ = *made;
    connected_ = true;
    for (Subscription& subscription : subscriptions_) {
        attach(subscription);
    }
    tell(&Observer::came);
}

void Bus::lose() {
    QDBusConnection::disconnectFromBus(connection_.name());
    connection_ = noConnection();
    connected_ = false;
    tell(&Observer::went);
}

void Bus::tell(std::function<void()> Observer::*what) {
    for (const Observer& observer : observers_) {
        (observer.*what)();
    }
}

void Bus::attach(Subscription& subscription) {
    const BusSignal& signal = subscription.signal;
    // A service named here would be asked for at once, and waited for: senders are told apart on arrival
    // instead.
    connection_.connect(QString(), signal.path, signal.interface, signal.member, signal.firstArguments,
                        QString(), subscription.receiver.get(), SignalReceiver::slot());
}

void Bus::refresh(double uptime) {
    if (connected_ && !connection_.isConnected()) {
        lose();
    }
    if (!connected_ && !attempt_ && !address_.isEmpty() && uptime >= nextAttempt_) {
        nextAttempt_ = uptime + secondsBetweenAttempts;
        beginAttempt();
    }
}

bool Bus::waitUntilConnected(double seconds) {
    if (const auto attempt = attempt_; attempt && attempt->waitFor(seconds)) {
        takeAttempt();
    }
    return connected_;
}

void Bus::flush(double seconds) {
    const QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"));
    const QDBusPendingCall answer = connection_.asyncCall(question);
    // Qt's own waiting leans on a thread that another bus may be holding up, so it could last for ever.
    const auto deadline = Clock::now() + std::chrono::duration<double>(seconds);
    while (!answer.isFinished() && Clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace quietlark
