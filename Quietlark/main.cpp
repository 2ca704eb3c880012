#include "Quietlark/AppDelegate.h"
#include "Quietlark/CommandLine.h"
#include "Quietlark/Diagnosis/Diagnosis.h"
#include "WumbleCore/Foundation/Match.h"

#include <QCoreApplication>

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
    const QCoreApplication application(argumentCount, arguments);
    return wumble::match(
        asked, [](const command::RunApplication& options) { return runApplication(options); },
        [](const command::Refuse& refusal) { return refusal.status; },
        [](const auto& diagnosis) { return runDiagnosis(diagnosis); });
}
