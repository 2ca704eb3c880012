#include <QCoreApplication>
#include <gtest/gtest.h>

// The buses and the displays of these tests are their own: nothing of the machine's own session is touched.
int main(int argumentCount, char** arguments) {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_SESSION_ID",
                             "XDG_SESSION_TYPE", "XDG_CURRENT_DESKTOP", "PULSE_SERVER"}) {
        qunsetenv(name);
    }
    testing::InitGoogleTest(&argumentCount, arguments);
    QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
