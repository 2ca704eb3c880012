#include "tools/quietlark-soak/RecordedPlatform.h"

#include <memory>
#include <utility>
#include <variant>

namespace quietlark::soak {

namespace {

/// Asks the real service as often as the program does, and answers for the person.
template <class Service> class Behind : public Service {
public:
    Behind(std::unique_ptr<Service> real, const RecordedPerson& shown)
        : real_(std::move(real)), person_(shown) {}

    bool ready() const override { return real_->ready(); }
    void refresh(double uptime) override { real_->refresh(uptime); }

protected:
    const RecordedPerson& person() const { return person_; }
    const Service& real() const { return *real_; }

    /// The program of an activity of that kind, while it goes on.
    template <class Activity> std::optional<AppRef> program() const {
        const auto* activity = person_.activity ? std::get_if<Activity>(&*person_.activity) : nullptr;
        return activity != nullptr ? std::optional(AppRef{.name = activity->app.value_or("somebody")})
                                   : std::nullopt;
    }

private:
    std::unique_ptr<Service> real_;
    const RecordedPerson& person_;
};

class Input final : public Behind<InputClock> {
public:
    using Behind::Behind;
    std::optional<double> secondsSinceAnyInput() const override { return person().idleSeconds; }
    std::optional<double> secondsSinceKeyDown() const override { return person().secondsSinceKeyDown; }
    std::optional<double> secondsSinceLeftMouseDown() const override { return std::nullopt; }
    std::optional<double> secondsSinceRightMouseDown() const override { return std::nullopt; }
    bool leftButtonHeld() const override { return false; }
    bool rightButtonHeld() const override { return false; }
};

class Calls final : public Behind<Microphone> {
public:
    using Behind::Behind;
    std::optional<std::vector<AppRef>> recordingApps() const override {
        auto apps = real().recordingApps();
        if (const auto call = program<wumble::activity::Meeting>()) {
            apps = apps.value_or(std::vector<AppRef>{});
            apps->push_back(*call);
        }
        return apps;
    }
    bool physicalMicrophoneRunning() const override { return real().physicalMicrophoneRunning(); }
};

class Shares final : public Behind<ScreenWatch> {
public:
    using Behind::Behind;
    std::optional<bool> isWatched() const override {
        return program<wumble::activity::ScreenSharing>() ? true : real().isWatched();
    }
};

class Films final : public Behind<SleepHolders> {
public:
    using Behind::Behind;
    std::vector<SleepHolder> displaySleepHolders() const override {
        auto holders = real().displaySleepHolders();
        if (const auto film = program<wumble::activity::Video>()) {
            holders.push_back({*film, "playing video"});
        }
        return holders;
    }
};

template <class Service, class Interface>
void put(std::unique_ptr<Interface>& place, const RecordedPerson& person) {
    place = std::make_unique<Service>(std::move(place), person);
}

} // namespace

Platform withPerson(Platform desktop, const RecordedPerson& person) {
    put<Input>(desktop.input, person);
    put<Calls>(desktop.microphone, person);
    put<Shares>(desktop.screenWatch, person);
    put<Films>(desktop.sleepHolders, person);
    return desktop;
}

} // namespace quietlark::soak
