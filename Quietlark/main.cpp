#include "Quietlark/AppDelegate.h"
#include "Quietlark/CommandLine.h"
#include "Quietlark/Diagnosis/Diagnosis.h"
#include "Quietlark/GraphicalApplication.h"
#include "Quietlark/RenderCommands.h"
#include "Quietlark/TerminationSignals.h"

#include <QApplication>
#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <variant>
#include <vector>

namespace {

using namespace quietlark;

/// Each kind of process, by what it needs around it.
struct Process {
    int& argumentCount;
    char** arguments;

    int operator()(const command::Refuse& refusal) const {
        std::fputs(refusal.complaint.c_str(), stderr);
        return refusal.status;
    }

    int operator()(const command::RunApplication& options) const {
        // Before the window system starts a thread, which would let the process end unsaved.
        TerminationSignals::hold();
        const auto application = makeGraphicalApplication(argumentCount, arguments);
        return runApplication(options);
    }

    int operator()(const command::Render& command) const { return render(command); }
    int operator()(const command::KeepIcon& command) const { return render(command); }

    int operator()(const auto& diagnosis) const {
        const QCoreApplication application(argumentCount, arguments);
        return runDiagnosis(diagnosis);
    }

private:
    int render(const auto& command) const {
        // Pictures need no screen, and look the same on any.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const QApplication application(argumentCount, arguments);
        return runRender(command);
    }
};

} // namespace

int main(int argumentCount, char** arguments) {
    // A service may end while something is being written to it; that is told by the write, not by the process's end.
    std::signal(SIGPIPE, SIG_IGN);
    const Command asked = commandFor(std::vector<std::string>(arguments + 1, arguments + argumentCount));
    return std::visit(Process{argumentCount, arguments}, asked);
}
