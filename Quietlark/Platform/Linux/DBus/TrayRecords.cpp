#include "Quietlark/Platform/Linux/DBus/TrayRecords.h"

#include <QDBusMetaType>
#include <QDBusVariant>
#include <QtEndian>

namespace quietlark::trayRecords {

namespace {

/// Writes or reads the fields in their order as one structure.
template <class... Fields> QDBusArgument& write(QDBusArgument& argument, const Fields&... fields) {
    argument.beginStructure();
    (argument << ... << fields);
    argument.endStructure();
    return argument;
}

template <class... Fields> const QDBusArgument& read(const QDBusArgument& argument, Fields&... fields) {
    argument.beginStructure();
    (argument >> ... >> fields);
    argument.endStructure();
    return argument;
}

Pixmap pixmap(const QImage& picture) {
    QImage plain = picture.convertToFormat(QImage::Format_ARGB32);
    Pixmap result = {plain.width(), plain.height(), {}};
    result.pixels.reserve(static_cast<qsizetype>(plain.width()) * plain.height() * 4);
    for (int row = 0; row < plain.height(); ++row) {
        auto* line = reinterpret_cast<quint32*>(plain.scanLine(row));
        qToBigEndian<quint32>(line, plain.width(), line);
        result.pixels.append(reinterpret_cast<const char*>(line), static_cast<qsizetype>(plain.width()) * 4);
    }
    return result;
}

} // namespace

void registerTypes() {
    qDBusRegisterMetaType<Pixmap>();
    qDBusRegisterMetaType<Pixmaps>();
    qDBusRegisterMetaType<ToolTip>();
    qDBusRegisterMetaType<MenuItemProperties>();
    qDBusRegisterMetaType<QList<MenuItemProperties>>();
    qDBusRegisterMetaType<MenuItemLayout>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

Pixmaps pixmaps(const std::vector<QImage>& pictures) {
    Pixmaps result;
    for (const QImage& picture : pictures) {
        result.append(pixmap(picture));
    }
    return result;
}

QDBusArgument& operator<<(QDBusArgument& argument, const Pixmap& pixmap) {
    return write(argument, pixmap.width, pixmap.height, pixmap.pixels);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Pixmap& pixmap) {
    return read(argument, pixmap.width, pixmap.height, pixmap.pixels);
}

QDBusArgument& operator<<(QDBusArgument& argument, const ToolTip& toolTip) {
    return write(argument, toolTip.iconName, toolTip.icons, toolTip.title, toolTip.text);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ToolTip& toolTip) {
    return read(argument, toolTip.iconName, toolTip.icons, toolTip.title, toolTip.text);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item) {
    return write(argument, item.id, item.properties);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item) {
    return read(argument, item.id, item.properties);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemLayout& item) {
    return write(argument, item.id, item.properties, item.children);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemLayout& item) {
    return read(argument, item.id, item.properties, item.children);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    return write(argument, event.id, event.what, QDBusVariant(event.data), event.time);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
    QDBusVariant data;
    read(argument, event.id, event.what, data, event.time);
    event.data = data.variant();
    return argument;
}

} // namespace quietlark::trayRecords
