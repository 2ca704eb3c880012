#pragma once

#include "Quietlark/Platform/Linux/DBus/SignalReceiver.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QStringList>
#include <functional>
#include <list>
#include <memory>

namespace quietlark {

/// Where a signal comes from; an empty path means any.
struct BusSignal {
    QString path;
    QString interface;
    QString member;
    QStringList firstArguments = {}; ///< only signals that begin with these
};

/// One connection to a message bus, looked for again when it is lost. No call of it waits for the bus, but
/// for `waitUntilConnected` and `flush`. Main thread only.
class Bus {
public:
    /// An empty address is a bus that never comes.
    explicit Bus(QString address);
    ~Bus();
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    /// The addresses that the environment names; empty where there is none. Nothing is ever launched.
    static QString sessionAddress();
    static QString systemAddress();

    /// Sees whether the connection came or went, and tries again at most every five seconds.
    void refresh(double uptime);

    bool isConnected() const { return connected_; }

    /// Whether the first attempt has been made, successful or not.
    bool settled() const { return settled_; }

    /// Waits for an attempt under way; whether there is a connection then.
    bool waitUntilConnected(double seconds);

    /// Waits until the bus has taken everything sent so far.
    void flush(double seconds);

    QDBusConnection connection() const { return connection_; }

private:
    friend class BusLink;
    struct Subscription {
        BusSignal signal;
        std::unique_ptr<SignalReceiver> receiver;
    };
    struct Observer {
        std::function<void()> came;
        std::function<void()> went;
    };

    struct Attempt;

    void beginAttempt();
    void takeAttempt();
    void lose();
    void tell(std::function<void()> Observer::*what);
    void attach(Subscription& subscription);

    QString address_;
    QDBusConnection connection_;
    std::shared_ptr<Attempt> attempt_; ///< while one is under way
    double nextAttempt_ = 0;
    bool connected_ = false;
    bool settled_ = false;
    std::list<Subscription> subscriptions_;
    std::list<Observer> observers_;
};

} // namespace quietlark
