#include "Quietlark/GraphicalApplication.h"
#include "Quietlark/TerminationSignals.h"
#include "tools/quietlark-soak/Soak.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace quietlark;

constexpr int wrongUsage = 64;
constexpr int noInput = 66;
constexpr double usualSpeed = 1000;

int judge(const std::vector<std::vector<soak::Level>>& rows) {
    const auto names = soak::grown(rows);
    for (const std::string& name : names) {
        std::printf("grew: %s\n", name.c_str());
    }
    if (names.empty()) {
        std::printf("level at the end of %zu days\n", rows.size());
    }
    return names.empty() && rows.size() > 1 ? 0 : 1;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const double speed = argumentCount > 2 ? std::atof(arguments[2]) : usualSpeed;
    if (argumentCount < 2 || !(speed > 0)) {
        std::fputs("usage: quietlark-soak RECORDING [SPEED]\n", stderr);
        return wrongUsage;
    }
    auto recording = soak::Recording::read(arguments[1]);
    if (!recording) {
        std::fprintf(stderr, "quietlark-soak: %s tells of no days\n", arguments[1]);
        return noInput;
    }
    qputenv("TZ", recording->timeZone.c_str());
    TerminationSignals::hold();
    const auto application = makeGraphicalApplication(argumentCount, arguments);
    const QTemporaryDir folder;
    const soak::Soak soak(folder.path().toStdString(), std::move(*recording), speed);
    QApplication::exec();
    return judge(soak.rows());
}
