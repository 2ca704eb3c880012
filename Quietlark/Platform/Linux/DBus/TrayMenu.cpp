#include "Quietlark/Platform/Linux/DBus/TrayMenu.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>

#include <algorithm>

namespace quietlark {

namespace {

using trayRecords::MenuEvent;
using trayRecords::MenuItemLayout;
using trayRecords::MenuItemProperties;

const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

bool sameLabels(const std::vector<TrayMenuRow>& left, const std::vector<TrayMenuRow>& right) {
    return std::ranges::equal(left, right, [](const TrayMenuRow& one, const TrayMenuRow& other) {
        return one.label == other.label && !one.chosen == !other.chosen && sameLabels(one.rows, other.rows);
    });
}

/// Panels take an underline for the mark of a key.
QString escaped(const std::string& label) {
    return QString::fromStdString(label).replace(u'_', QStringLiteral("__"));
}

/// Of the menu as a whole.
QVariantMap menuProperties() {
    return {{QStringLiteral("Version"), 3u},
            {QStringLiteral("TextDirection"), QStringLiteral("ltr")},
            {QStringLiteral("Status"), QStringLiteral("normal")},
            {QStringLiteral("IconThemePath"), QStringList()}};
}

QVariant variant(const QVariant& value) { return QVariant::fromValue(QDBusVariant(value)); }

template <class Record> QVariant record(const Record& value) { return QVariant::fromValue(value); }

} // namespace

const QString& TrayMenu::path() {
    static const QString place = QStringLiteral("/MenuBar");
    return place;
}

const QString& TrayMenu::interface() {
    static const QString name = QStringLiteral("com.canonical.dbusmenu");
    return name;
}

void TrayMenu::setRows(std::vector<TrayMenuRow> rows) {
    const bool isSame = sameLabels(rows, root_.rows);
    root_.rows = std::move(rows);
    if (isSame) {
        nextID_ -= static_cast<int>(items_.size()) - 1;
    }
    items_.clear();
    addItem(0, root_);
    if (!isSame) {
        layoutUpdated_(++revision_);
    }
}

int TrayMenu::addItem(int id, const TrayMenuRow& row) {
    Item item = {&row, {}};
    for (const TrayMenuRow& child : row.rows) {
        item.children.push_back(addItem(nextID_++, child));
    }
    items_[id] = std::move(item);
    return id;
}

QVariantMap TrayMenu::properties(int id) const {
    const TrayMenuRow& row = *items_.at(id).row;
    QVariantMap result;
    if (id != 0 && row.label.empty()) {
        result[QStringLiteral("type")] = QStringLiteral("separator");
    } else if (id != 0) {
        result[QStringLiteral("label")] = escaped(row.label);
        result[QStringLiteral("enabled")] = row.chosen || !row.rows.empty();
    }
    if (!row.rows.empty()) {
        result[QStringLiteral("children-display")] = QStringLiteral("submenu");
    }
    return result;
}

MenuItemLayout TrayMenu::layout(int id, int depth) const {
    MenuItemLayout result = {id, properties(id), {}};
    if (depth == 0) {
        return result;
    }
    for (const int child : items_.at(id).children) {
        result.children.append(record(layout(child, depth - 1)));
    }
    return result;
}

QVariantList TrayMenu::groupProperties(const QVariant& wanted) const {
    auto ids = qdbus_cast<QList<int>>(wanted);
    if (ids.isEmpty()) {
        for (const auto& [id, item] : items_) {
            ids.append(id);
        }
    }
    QList<MenuItemProperties> result;
    for (const int id : ids) {
        if (has(id)) {
            result.append({id, properties(id)});
        }
    }
    return {record(result)};
}

QVariantList TrayMenu::carryOutGroup(const QVariant& events) {
    QList<int> unknown;
    for (const MenuEvent& event : qdbus_cast<QList<MenuEvent>>(events)) {
        if (has(event.id)) {
            carryOut(event.id, event.what);
        } else {
            unknown.append(event.id);
        }
    }
    return {record(unknown)};
}

void TrayMenu::carryOut(int id, const QString& what) {
    if (!has(id) || what != QLatin1String("clicked")) {
        return;
    }
    // Choosing may well change the rows, and with them the row that was chosen.
    if (const auto chosen = items_.at(id).row->chosen) {
        chosen();
    }
}

QVariantList TrayMenu::answer(const QDBusMessage& message) {
    const QVariantList given = message.arguments();
    const QString called = message.member() + u' ' + message.signature();
    if (called == QLatin1String("GetLayout iias") && has(given[0].toInt())) {
        return {revision_, record(layout(given[0].toInt(), given[1].toInt()))};
    }
    if (called == QLatin1String("GetGroupProperties aias")) {
        return groupProperties(given[0]);
    }
    if (called == QLatin1String("GetProperty is") && has(given[0].toInt())) {
        return {variant(properties(given[0].toInt()).value(given[1].toString(), QString()))};
    }
    if (called == QLatin1String("AboutToShow i")) {
        return {false};
    }
    if (called == QLatin1String("AboutToShowGroup ai")) {
        return {record(QList<int>()), record(QList<int>())};
    }
    if (called == QLatin1String("EventGroup a(isvu)")) {
        return carryOutGroup(given[0]);
    }
    if (called == QLatin1String("Get ss") && menuProperties().contains(given[1].toString())) {
        return {variant(menuProperties().value(given[1].toString()))};
    }
    return called == QLatin1String("GetAll s") ? QVariantList{menuProperties()} : QVariantList();
}

bool TrayMenu::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const QString& named = message.interface();
    if (!named.isEmpty() && named != interface() && named != propertiesInterface) {
        return false;
    }
    if (message.member() == QLatin1String("Event") && message.signature() == QLatin1String("isvu")) {
        connection.send(message.createReply());
        carryOut(message.arguments()[0].toInt(), message.arguments()[1].toString());
        return true;
    }
    const QVariantList answered = answer(message);
    return !answered.isEmpty() && connection.send(message.createReply(answered));
}

QString TrayMenu::introspect(const QString& /*path*/) const {
    return QStringLiteral(R"xml(<interface name="com.canonical.dbusmenu">
  <property name="Version" type="u" access="read"/><property name="TextDirection" type="s" access="read"/>
  <property name="Status" type="s" access="read"/><property name="IconThemePath" type="as" access="read"/>
  <method name="GetLayout">
    <arg type="i" direction="in"/><arg type="i" direction="in"/><arg type="as" direction="in"/>
    <arg type="u" direction="out"/><arg type="(ia{sv}av)" direction="out"/>
  </method>
  <method name="GetGroupProperties">
    <arg type="ai" direction="in"/><arg type="as" direction="in"/><arg type="a(ia{sv})" direction="out"/>
  </method>
  <method name="GetProperty">
    <arg type="i" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
  <method name="Event">
    <arg type="i" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="in"/>
    <arg type="u" direction="in"/>
  </method>
  <method name="EventGroup"><arg type="a(isvu)" direction="in"/><arg type="ai" direction="out"/></method>
  <method name="AboutToShow"><arg type="i" direction="in"/><arg type="b" direction="out"/></method>
  <method name="AboutToShowGroup">
    <arg type="ai" direction="in"/><arg type="ai" direction="out"/><arg type="ai" direction="out"/>
  </method>
  <signal name="LayoutUpdated"><arg type="u"/><arg type="i"/></signal>
</interface>
)xml");
}

} // namespace quietlark
