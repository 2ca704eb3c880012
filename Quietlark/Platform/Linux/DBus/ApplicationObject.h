#pragma once

#include <QDBusVirtualObject>
#include <functional>

namespace quietlark {

/// This program as desktops start it again: the standard application interface. Opening files and actions, of
/// which there are none, ask it to show itself too.
class ApplicationObject : public QDBusVirtualObject {
public:
    explicit ApplicationObject(std::function<void()> activated) : activated_(std::move(activated)) {}

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    std::function<void()> activated_;
};

} // namespace quietlark
