#include "Quietlark/Platform/Linux/DBus/StatusNotifierItem.h"

#include <utility>

namespace quietlark {

namespace {

const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

/// A label that counts seconds is read by a panel when it shows it; telling of each second would keep it awake.
bool differsInWords(const QString& left, const QString& right) {
    const auto words = [](QString text) {
        return text.removeIf([](QChar letter) { return letter.isDigit(); });
    };
    return words(left) != words(right);
}

} // namespace

StatusNotifierItem::StatusNotifierItem(std::shared_ptr<Bus> session)
    : link_(std::move(session)), menu_([this](unsigned revision) {
          constexpr int wholeMenu = 0;
          QDBusMessage signal = QDBusMessage::createSignal(TrayMenu::path(), TrayMenu::interface(),
                                                           QStringLiteral("LayoutUpdated"));
          signal.setArguments({revision, wholeMenu});
          link_.bus().connection().send(signal);
      }) {
    trayRecords::registerTypes();
    link_.onConnection([this] { appear(); }, [this] { setHasPanel(false); });
    link_.followService(
        watcher, [this] { enlist(); }, [this] { setHasPanel(false); });
    for (const char* member : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        link_.onSignal({watcherPath, watcher, QLatin1String(member)}, [this](const QDBusMessage& message) {
            if (link_.isOwner(watcher, message)) {
                askForPanel();
            }
        });
    }
}

StatusNotifierItem::~StatusNotifierItem() {
    QDBusConnection connection = link_.bus().connection();
    if (connection.isConnected()) {
        connection.unregisterObject(StatusNotifierObject::path());
        connection.unregisterObject(TrayMenu::path());
    }
}

void StatusNotifierItem::appear() {
    QDBusConnection connection = link_.bus().connection();
    connection.registerVirtualObject(StatusNotifierObject::path(), &object_);
    connection.registerVirtualObject(TrayMenu::path(), &menu_);
}

void StatusNotifierItem::enlist() {
    link_.call({watcher, watcherPath, watcher, QStringLiteral("RegisterStatusNotifierItem")},
               {link_.bus().connection().baseService()}, [](const QDBusMessage&) {});
    askForPanel();
}

void StatusNotifierItem::askForPanel() {
    link_.getProperty({watcher, watcherPath, watcher, QStringLiteral("IsStatusNotifierHostRegistered")},
                      [this](const QVariant& has) { setHasPanel(link_.isRunning(watcher) && has.toBool()); });
}

void StatusNotifierItem::setHasPanel(bool has) {
    if (std::exchange(hasPanel_, has) != has && shownChanged_) {
        shownChanged_();
    }
}

/// No panel tells its colours here, but the bar of one desktop is dark whatever the rest of it is.
std::optional<bool> StatusNotifierItem::isPanelDark() const {
    const bool isGnome = qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME"));
    return isGnome ? std::optional(true) : std::nullopt;
}

void StatusNotifierItem::tell(const QString& member, const QVariantList& arguments) {
    QDBusMessage signal =
        QDBusMessage::createSignal(StatusNotifierObject::path(), StatusNotifierObject::interface(), member);
    signal.setArguments(arguments);
    link_.bus().connection().send(signal);
}

void StatusNotifierItem::setPictures(std::vector<QImage> pictures) {
    if (object_.pictures != pictures) {
        object_.pictures = std::move(pictures);
        tell(QStringLiteral("NewIcon"));
    }
}

void StatusNotifierItem::setTitle(const std::string& title) {
    const QString wanted = QString::fromStdString(title);
    if (std::exchange(object_.title, wanted) != wanted) {
        tell(QStringLiteral("XAyatanaNewLabel"), {wanted, object_.titleGuide()});
    }
}

void StatusNotifierItem::setLabel(const std::string& label) {
    const QString wanted = QString::fromStdString(label);
    if (differsInWords(std::exchange(object_.label, wanted), wanted)) {
        tell(QStringLiteral("NewToolTip"));
    }
}

} // namespace quietlark
