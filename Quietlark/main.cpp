#include "Quietlark/AppDelegate.h"
#include "Quietlark/CommandLine.h"
#include "Quietlark/Diagnosis/Diagnosis.h"
#include "WumbleCore/Foundation/Match.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <string>
#include <vector>

int main(int argumentCount, char** arguments) {
    using namespace quietlark;
    const Command asked = commandFor(std::vector<std::string>(arguments + 1, arguments + argumentCount));
    if (const auto* refusal = std::get_if<command::Refuse>(&asked)) {
        std::fputs(refusal->complaint.c_str(), stderr);
        return refusal->status;
    }
    // A service may end while something is being written to it; that is told by the write, not by the process's end.
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication application(argumentCount, arguments);
    return wumble::match(
        asked, [](const command::RunApplication& options) { return runApplication(options); },
        [](const command::Refuse& refusal) { return refusal.status; },
        [](const auto& diagnosis) { return runDiagnosis(diagnosis); });
}
