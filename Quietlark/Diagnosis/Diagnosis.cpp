#include "Quietlark/Diagnosis/Diagnosis.h"

#include "Quietlark/Activity/CaptureLog.h"
#include "Quietlark/Activity/SmartPauseDetector.h"
#include "Quietlark/Diagnosis/Report.h"
#include "Quietlark/Platform/Linux/LinuxPlatform.h"
#include "Quietlark/QtMainLoop.h"
#include "WumbleCore/Storage/Storage.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLocale>
#include <QTime>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

namespace quietlark {

namespace {

/// A service that hasn't answered by then is told as one that doesn't know.
constexpr double longestWaitForAnswers = 2;

constexpr int questionsUntilAllAreKnown = 50;

/// The machine as the detector sees it, without the application around it.
class Observation {
public:
    Observation() { captureLog_.start(); }

    /// Runs the event loop until everything that is asked has answered, or until waiting is no use.
    void settle() {
        const double started = loop_.uptime();
        while (!hasSettled() && loop_.uptime() - started < longestWaitForAnswers) {
            turn(0.01);
        }
        // Who runs is found out a little with each question, and a report asks only once more.
        for (int question = 0; question < questionsUntilAllAreKnown; ++question) {
            platform_.applications->running();
        }
    }

    /// Runs the event loop for that long.
    void turn(double seconds) {
        QEventLoop events;
        loop_.after(seconds, [&events] { events.quit(); });
        events.exec();
        platform_.refresh(loop_.uptime());
    }

    Report::Findings look() {
        platform_.refresh(loop_.uptime());
        Report::Findings findings;
        findings.activity = detector_.poll(settings_, loop_.now());
        findings.status = detector_.status();
        findings.dataFolder = storage_.directory().string();
        findings.idleSeconds = platform_.input->secondsSinceAnyInput();
        findings.secondsSinceKeyPress = platform_.input->secondsSinceKeyDown();
        findings.capturers = captureLog_.latest();
        return findings;
    }

    double uptime() const { return loop_.uptime(); }

private:
    bool hasSettled() const { return platform_.ready() && captureLog_.latest().has_value(); }

    QtMainLoop loop_;
    wumble::Storage storage_{wumble::Storage::defaultDirectory()};
    wumble::WumbleSettings settings_ = storage_.loadSettings();
    Platform platform_ = makeLinuxPlatform(loop_);
    CaptureLog captureLog_{std::move(platform_.captureLogRunner), [this] { return loop_.now(); }};
    SmartPauseDetector detector_{platform_, captureLog_};
};

/// A library that waits for a bus which stands still would keep the process from ending, and there is nothing to save.
[[noreturn]] void leave() {
    std::fflush(stdout);
    std::_Exit(0);
}

void print(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
}

std::string timeOfDay() {
    const QLocale locale = QLocale::system();
    QString format = locale.timeFormat(QLocale::LongFormat);
    for (const char* zone : {"(t)", "t"}) {
        format.remove(QLatin1String(zone));
    }
    return locale.toString(QTime::currentTime(), format.trimmed()).toStdString();
}

/// Looks every `interval` seconds for so many seconds in all.
int watch(double seconds, double interval, const std::function<void(const Report::Findings&)>& tell) {
    Observation observation;
    observation.settle();
    const double end = observation.uptime() + seconds;
    do {
        tell(observation.look());
        observation.turn(std::min(interval, end - observation.uptime()));
    } while (observation.uptime() < end);
    leave();
}

} // namespace

int runDiagnosis(const command::Diagnose&) {
    Observation observation;
    observation.settle();
    print(Report::diagnosis(observation.look()));
    leave();
}

int runDiagnosis(const command::WatchMicrophone& command) {
    constexpr double interval = 2;
    return watch(command.seconds, interval, [](const Report::Findings& findings) {
        print(Report::microphoneLine(findings, timeOfDay()) + "\n");
    });
}

int runDiagnosis(const command::WatchCapture& command) {
    constexpr double interval = 0.25;
    std::string last;
    return watch(command.seconds, interval, [&last](const Report::Findings& findings) {
        const std::string line = Report::captureLine(findings);
        if (line != last) {
            print(line + "\n");
            last = line;
        }
    });
}

} // namespace quietlark
