#pragma once

#include "Quietlark/Platform/Linux/DBus/TrayRecords.h"
#include "Quietlark/Platform/TrayItem.h"

#include <QDBusVirtualObject>

#include <functional>
#include <map>
#include <vector>

namespace quietlark {

/// A menu that a panel draws: the panel asks for the rows and tells which was chosen.
class TrayMenu : public QDBusVirtualObject {
public:
    /// `layoutUpdated` is called with the new revision whenever rows changed.
    explicit TrayMenu(std::function<void(unsigned revision)> layoutUpdated)
        : layoutUpdated_(std::move(layoutUpdated)) {}

    static const QString& path();
    static const QString& interface();

    /// Rows with the labels of those that stand keep their place on the screen.
    void setRows(std::vector<TrayMenuRow> rows);

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    struct Item {
        const TrayMenuRow* row = nullptr;
        std::vector<int> children;
    };

    int addItem(int id, const TrayMenuRow& row);
    bool has(int id) const { return items_.contains(id); }
    QVariantMap properties(int id) const;
    trayRecords::MenuItemLayout layout(int id, int depth) const;
    QVariantList answer(const QDBusMessage& message);
    QVariantList groupProperties(const QVariant& wanted) const;
    QVariantList carryOutGroup(const QVariant& events);
    void carryOut(int id, const QString& what);

    std::function<void(unsigned)> layoutUpdated_;
    TrayMenuRow root_;
    std::map<int, Item> items_{{0, {&root_, {}}}}; ///< the menu itself is 0
    int nextID_ =
        1; ///< numbers of rows that are gone aren't given to others: a panel may show old rows for a while
    unsigned revision_ = 1;
};

} // namespace quietlark
