#include "Quietlark/GraphicalApplication.h"

#include "Quietlark/Platform/Linux/Hosting/DisplayPlugin.h"

#include <QApplication>
#include <QByteArray>

#include <initializer_list>
#include <utility>
#include <vector>

namespace quietlark {

namespace {

/// Takes names out of the environment for as long as it lives.
class Unset {
public:
    explicit Unset(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            if (qEnvironmentVariableIsSet(name)) {
                taken_.emplace_back(name, qgetenv(name));
                qunsetenv(name);
            }
        }
    }
    ~Unset() {
        for (const auto& [name, value] : taken_) {
            qputenv(name, value);
        }
    }
    Unset(const Unset&) = delete;
    Unset& operator=(const Unset&) = delete;

private:
    std::vector<std::pair<const char*, QByteArray>> taken_;
};

/// By these Qt finds the desktop's theme, which brings a whole second toolkit into the process, and the session
/// manager, which the program listens to on the bus.
constexpr auto askedByQt = {"XDG_CURRENT_DESKTOP",  "DESKTOP_SESSION",          "KDE_FULL_SESSION",
                            "QT_QPA_PLATFORMTHEME", "GNOME_DESKTOP_SESSION_ID", "QT_STYLE_OVERRIDE",
                            "SESSION_MANAGER"};

} // namespace

std::unique_ptr<QApplication> makeGraphicalApplication(int& argumentCount, char** arguments) {
    chooseDisplayPlugin();
    const Unset hidden(askedByQt);
    QApplication::setDesktopFileName(QStringLiteral("com.fernwick.quietlark"));
    QApplication::setApplicationName(QStringLiteral("Quietlark"));
    QApplication::setStyle(QStringLiteral("fusion"));
    auto application = std::make_unique<QApplication>(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return application;
}

} // namespace quietlark
