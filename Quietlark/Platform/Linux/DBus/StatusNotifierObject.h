#pragma once

#include "Quietlark/Platform/Linux/DBus/TrayRecords.h"
#include "Quietlark/Platform/TrayItem.h"

#include <QDBusVirtualObject>

#include <vector>

namespace quietlark {

/// The tray item as panels read it and click on it.
class StatusNotifierObject : public QDBusVirtualObject {
public:
    static const QString& path();
    static const QString& interface();

    std::vector<QImage> pictures;
    QString title;
    QString label;
    TrayItem::Activated activated = [](auto) {};

    /// The widest that the title gets while only its digits change, so that the panel keeps the room for it.
    QString titleGuide() const;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QVariant property(const QString& name) const;
    bool answerProperties(const QDBusMessage& message, const QDBusConnection& connection) const;
};

} // namespace quietlark
