#include "Quietlark/RenderCommands.h"

#include "Quietlark/Platform/Linux/LinuxPlatform.h"
#include "Quietlark/QtMainLoop.h"
#include "Quietlark/Renderers/IconCopy.h"
#include "Quietlark/Renderers/Renderers.h"

#include <QEventLoop>

#include <cstdio>

namespace quietlark {

namespace {

constexpr int failure = 1;

/// A desktop that hasn't told of a dark look by then is a light one.
constexpr double longestWaitForTheDesktop = 1;

int complain() {
    std::fputs("The folder for the output can't be written.\n", stderr);
    return failure;
}

bool isDesktopDark() {
    QtMainLoop loop;
    const Platform platform = makeLinuxPlatform(loop);
    QEventLoop waiting;
    platform.look->observe([&waiting] { waiting.quit(); });
    loop.after(longestWaitForTheDesktop, [&waiting] { waiting.quit(); });
    waiting.exec();
    platform.look->observe({});
    return platform.look->look().dark;
}

bool isDark(wumble::Appearance appearance) {
    return appearance == wumble::Appearance::dark ||
           (appearance == wumble::Appearance::system && isDesktopDark());
}

} // namespace

int runRender(const command::Render& command) {
    const int status = runRenderer(command.option, command.folder, {.dark = isDark(command.appearance)});
    return status == 0 ? 0 : complain();
}

int runRender(const command::KeepIcon& command) {
    const std::string folder = command.folder.empty() ? IconCopy::keptFolder : command.folder;
    if (command.bringInStep) {
        return IconCopy::bringInStep(folder) ? 0 : complain();
    }
    const auto files = IconCopy::outOfStep(folder);
    for (const std::string& file : files) {
        std::fprintf(stderr, "%s/%s isn't what is drawn now; --app-icon --sync draws it anew.\n",
                     folder.c_str(), file.c_str());
    }
    return files.empty() ? 0 : failure;
}

} // namespace quietlark
