#pragma once

#include "Quietlark/Platform/Linux/DBus/Bus.h"

#include <QVariantList>
#include <list>
#include <map>

namespace quietlark {

/// A method of an object of a service.
struct BusMethod {
    QString service;
    QString path;
    QString interface;
    QString member;
};

/// What one part of the program follows and asks on a bus. Nothing is called back after it is gone.
class BusLink {
public:
    /// A reply or an error; also an error when nothing answered within five seconds.
    using Answer = std::function<void(const QDBusMessage&)>;

    explicit BusLink(std::shared_ptr<Bus> bus) : bus_(std::move(bus)) {}
    ~BusLink();
    BusLink(const BusLink&) = delete;
    BusLink& operator=(const BusLink&) = delete;

    Bus& bus() const { return *bus_; }

    /// Never starts a service that doesn't run. The answer always comes later, never within the call.
    void call(const BusMethod& method, const QVariantList& arguments, Answer answer);

    /// The value of a property inside the variant, or an invalid QVariant.
    void getProperty(const BusMethod& propertyOfInterface, std::function<void(const QVariant&)> answer);

    /// From now on, whatever comes and goes on the bus. The sender isn't checked; see `isOwner`.
    void onSignal(const BusSignal& signal, SignalReceiver::Handler handler);

    /// Called whenever the connection is there, and at once (later) when it is there now.
    void onConnection(std::function<void()> came, std::function<void()> went);

    /// Follows who owns a name. `came` is called for each new owner, `went` when there is none any more.
    void followService(const QString& name, std::function<void()> came, std::function<void()> went);

    /// Whether it is known who owns the name, or that nobody does.
    bool knows(const QString& name) const;
    bool isRunning(const QString& name) const;
    bool isOwner(const QString& name, const QDBusMessage& message) const;

private:
    struct Service {
        std::optional<QString> owner; ///< empty text: nobody; absent: not known yet
        std::function<void()> came;
        std::function<void()> went;
    };

    void askForOwner(const QString& name);
    void setOwner(const QString& name, const QString& told);

    std::shared_ptr<Bus> bus_;
    QObject context_;
    std::map<QString, Service> services_;
    std::list<std::list<Bus::Subscription>::iterator> subscriptions_;
    std::list<std::list<Bus::Observer>::iterator> observers_;
};

} // namespace quietlark
