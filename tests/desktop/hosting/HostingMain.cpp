#include "Quietlark/GraphicalApplication.h"
#include "tests/desktop/hosting/HostingDesktop.h"
#include "tests/support/TemporaryFolder.h"

#include <QApplication>
#include <gtest/gtest.h>

// Qt stays with the display that it starts on: one X server serves all the tests of a process.
int main(int argumentCount, char** arguments) {
    using namespace quietlark;
    for (const char* name :
         {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "DBUS_SESSION_BUS_ADDRESS", "XDG_SESSION_TYPE"}) {
        qunsetenv(name);
    }
    testing::InitGoogleTest(&argumentCount, arguments);
    const bool isMissing = !lab::isInstalled("Xvfb") || !lab::isInstalled("xrandr");
    if (isMissing || GTEST_FLAG_GET(list_tests)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const auto application = makeGraphicalApplication(argumentCount, arguments);
        return RUN_ALL_TESTS();
    }
    const lab::XServer server;
    const wumble::test::TemporaryFolder runtime;
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime.path().string()));
    qputenv("DISPLAY", QByteArray::fromStdString(server.display()));
    test::HostingDesktop::server = &server;
    const auto application = makeGraphicalApplication(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
