#include "tools/quietlark-soak/Soak.h"

#include "Quietlark/Platform/Linux/LinuxPlatform.h"
#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Storage/Storage.h"

#include <QApplication>
#include <QDBusMessage>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace quietlark::soak {

namespace {

/// What else happens on the desktop gets its turn at least so often.
constexpr std::chrono::milliseconds longestTurn{8};

/// A sound takes as long as ever, however fast the days go.
constexpr std::chrono::seconds untilQuiet{2};

/// The person looks into the popover every so many seconds, and away again after a while.
constexpr double lookEvery = 1500;
constexpr double lookFor = 20;

/// What is on the screen at the end of a day is waited for: it goes by itself or by a press of the icon.
constexpr double longestShowing = 600;
constexpr int calm = 30; ///< seconds without anything

bool isAnythingShown() {
    return std::ranges::any_of(QApplication::topLevelWidgets(),
                               [](const QWidget* window) { return window->isVisible(); });
}

bool isAt(double seconds, double every, double after) { return std::fmod(seconds, every) == after; }

} // namespace

Soak::Soak(std::filesystem::path folder, Recording recording, double speed)
    : folder_(std::move(folder)), recording_(std::move(recording)), speed_(speed), loop_(recording_.begin),
      bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("person"))) {
    const wumble::Storage storage(folder_);
    storage.save(recording_.settings);
    wumble::WumbleLife life;
    life.welcomed = true;
    storage.save(life);
    begin();
    begun_ = Clock::now();
    pace_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&pace_, &QTimer::timeout, &pace_, [this] { catchUp(); });
    pace_.start(std::chrono::milliseconds(1));
}

void Soak::begin() {
    program_.emplace(folder_, command::RunApplication{}, loop_,
                     withPerson(makeLinuxPlatform(loop_), person_));
}

void Soak::catchUp() {
    const auto turnEnds = Clock::now() + longestTurn;
    const double due = std::chrono::duration<double>(Clock::now() - begun_).count() * speed_;
    while (pace_.isActive() && passed_ < due && Clock::now() < turnEnds) {
        if (scene_ == recording_.scenes.size()) {
            pace_.stop();
            QCoreApplication::quit();
        } else {
            second();
        }
    }
}

/// A second of the scene, or what comes at its end.
void Soak::second() {
    const Scene& scene = recording_.scenes[scene_];
    const double left = scene.until - loop_.now();
    const bool isTold = std::holds_alternative<act::Tell>(scene.atEnd);
    calmFor_ = isAnythingShown() ? 0 : calmFor_ + 1;
    if (left <= 0 && left > -longestShowing && isTold && calmFor_ < calm) {
        look(scene, 1);
    } else if (left <= 0) {
        ++scene_;
        carryOut(scene.atEnd);
    } else if (scene.machine == Scene::Machine::asleep) {
        loop_.suspend(left);
    } else {
        look(scene, std::min(left, 1.0));
    }
}

void Soak::look(const Scene& scene, double seconds) {
    const bool isAway = scene.person == Scene::Person::away;
    person_ = {.idleSeconds = isAway ? person_.idleSeconds + seconds : 0,
               .secondsSinceKeyDown = scene.secondsSinceKeyDown,
               .activity = scene.activity};
    loop_.advance(seconds);
    passed_ += seconds;
    if (!isAway && (isAt(passed_, lookEvery, 0) || isAt(passed_, lookEvery, lookFor))) {
        pressTheIcon();
        calmFor_ = 0;
    }
}

/// As a panel does.
void Soak::pressTheIcon() const {
    auto press = QDBusMessage::createMethodCall(
        QStringLiteral("com.fernwick.quietlark"), QStringLiteral("/StatusNotifierItem"),
        QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Activate"));
    press.setArguments({200, 10});
    bus_.send(press);
}

void Soak::carryOut(const Act& act) {
    AppModel& model = program_->model();
    wumble::match(
        act, [](const act::Nothing&) {},
        [&](const act::Snooze& asked) { model.snooze(asked.by, Asked::menu); },
        [&](const act::Pause& asked) {
            model.pause(asked.until ? std::optional(*asked.until - loop_.now()) : std::nullopt, Asked::menu);
        },
        [&](const act::Skip&) { model.skip(wumble::BreakEngine::SkipRule::asAllowed); },
        [&](const act::IgnoreSmartPause&) { model.ignoreSmartPause(); },
        [&](const act::Restart&) {
            program_.reset();
            begin();
        },
        [&](const act::Tell&) { tellWhenQuiet(); });
}

void Soak::tellWhenQuiet() {
    pace_.stop();
    QTimer::singleShot(untilQuiet, &pace_, [this] {
        tell();
        begun_ += untilQuiet;
        pace_.start();
    });
}

void Soak::tell() {
    rows_.push_back(countLevels());
    if (rows_.size() == 1) {
        std::printf("%-11s %8s", "day", "breaks");
        for (const Level& level : rows_.back()) {
            std::printf(" %12s", level.what.c_str());
        }
        std::printf("\n");
    }
    const auto records = program_->model().state().history.value().size();
    std::printf("%-11zu %8zu", rows_.size(), records);
    for (const Level& level : rows_.back()) {
        std::printf(" %12ld", level.held);
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace quietlark::soak
