#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QString>
#include <QVariantMap>

#include <vector>

/// The records that panels read from a tray item and from its menu, as the bus has them.
namespace quietlark::trayRecords {

/// A picture, four bytes a pixel: alpha, red, green, blue.
struct Pixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using Pixmaps = QList<Pixmap>;

struct ToolTip {
    QString iconName;
    Pixmaps icons;
    QString title;
    QString text;
};

struct MenuItemProperties {
    int id = 0;
    QVariantMap properties;
};

struct MenuItemLayout {
    int id = 0;
    QVariantMap properties;
    QVariantList children; ///< each of them a MenuItemLayout
};

/// What a panel says was done with a row of the menu.
struct MenuEvent {
    int id = 0;
    QString what;
    QVariant data;
    unsigned time = 0;
};

/// Makes the records known to the bus; to be called once before they are sent.
void registerTypes();

Pixmaps pixmaps(const std::vector<QImage>& pictures);

QDBusArgument& operator<<(QDBusArgument& argument, const Pixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, Pixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const ToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, ToolTip& toolTip);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemLayout& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemLayout& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

} // namespace quietlark::trayRecords
