// Tells how long a running program needs from the moment at which a break is due to the window of it, and to a full
// frame on each screen, all seen from outside: break-watch PID
// The moment is the last at which the process's main thread woke from a rest before its window came.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <unistd.h>

#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;
using Moment = Clock::time_point;

/// A thread that didn't run for so long was at rest; what it does within one round has no such gaps.
constexpr std::chrono::milliseconds rest{100};
constexpr std::chrono::microseconds betweenLooks{200}; ///< which leave the processor to what is watched
constexpr std::chrono::seconds longestWait{60};
constexpr std::chrono::seconds longestFrame{1};

/// Sees when a thread that was at rest begins to run.
class Wakes {
public:
    explicit Wakes(const std::string& pid)
        : file_(open(("/proc/" + pid + "/task/" + pid + "/schedstat").c_str(), O_RDONLY)) {}
    ~Wakes() { close(file_); }
    Wakes(const Wakes&) = delete;
    Wakes& operator=(const Wakes&) = delete;

    bool isKnown() const { return file_ >= 0; }

    void look() {
        char text[128] = {};
        if (pread(file_, text, sizeof text - 1, 0) <= 0) {
            return;
        }
        // Nanoseconds on a processor, nanoseconds waiting for one, and how often it got one.
        char* end = nullptr;
        std::strtoull(text, &end, 10);
        const auto waited = std::strtoull(end, &end, 10);
        const auto turns = std::strtoull(end, nullptr, 10);
        const Moment now = Clock::now();
        if (turns != turns_ || waited != waited_) {
            if (now - lastRun_ > rest) {
                woke_ = now;
            }
            lastRun_ = now;
        }
        turns_ = turns;
        waited_ = waited;
    }

    Moment last() const { return woke_; }

private:
    int file_;
    unsigned long long turns_ = 0;
    unsigned long long waited_ = 0;
    Moment lastRun_;
    Moment woke_;
};

double milliseconds(Clock::duration length) {
    return std::chrono::duration<double, std::milli>(length).count();
}

/// What came of one window.
struct Seen {
    std::uint32_t pixels = 0;
    std::optional<Moment> mapped;
    std::uint64_t drawn = 0;    ///< pixels, since it was made
    std::optional<Moment> full; ///< as many were drawn as it has
};

/// Follows what is made, mapped and drawn on a display.
class Screen {
public:
    Screen() : server_(xcb_connect(nullptr, nullptr), &xcb_disconnect) {
        const auto* damage = xcb_get_extension_data(server_.get(), &xcb_damage_id);
        if (xcb_connection_has_error(server_.get()) != 0 || damage == nullptr || damage->present == 0) {
            return;
        }
        damageEvent_ = damage->first_event;
        std::free(xcb_damage_query_version_reply(server_.get(), xcb_damage_query_version(server_.get(), 1, 1),
                                                 nullptr));
        const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(server_.get())).data;
        const std::uint32_t children = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(server_.get(), screen.root, XCB_CW_EVENT_MASK, &children);
        xcb_flush(server_.get());
        large_ = std::uint32_t{screen.width_in_pixels} * screen.height_in_pixels / 4;
    }

    bool isKnown() const { return damageEvent_ != 0; }

    /// Takes what has come, without waiting.
    void look() {
        const auto now = Clock::now();
        while (xcb_generic_event_t* event = xcb_poll_for_event(server_.get())) {
            take(*event, now);
            std::free(event);
        }
        xcb_flush(server_.get());
    }

    /// When the first and the last of the windows came that cover much of the screen, and when the last of them was
    /// drawn whole; absent before there is one.
    struct Large {
        Moment firstMapped;
        Moment lastMapped;
        std::optional<Moment> full; ///< absent while one of them isn't
        int count = 0;
    };
    std::optional<Large> large() const {
        std::optional<Large> all;
        for (const auto& [window, seen] : windows_) {
            if (!seen.mapped || seen.pixels < large_) {
                continue;
            }
            if (!all) {
                all = Large{*seen.mapped, *seen.mapped, seen.full};
            }
            all->firstMapped = std::min(all->firstMapped, *seen.mapped);
            all->lastMapped = std::max(all->lastMapped, *seen.mapped);
            all->full =
                all->full && seen.full ? std::optional(std::max(*all->full, *seen.full)) : std::nullopt;
            ++all->count;
        }
        return all;
    }

private:
    void take(const xcb_generic_event_t& event, Moment now) {
        const int type = event.response_type & 0x7f;
        if (type == XCB_CREATE_NOTIFY) {
            const auto& made = reinterpret_cast<const xcb_create_notify_event_t&>(event);
            windows_[made.window].pixels = std::uint32_t{made.width} * made.height;
            xcb_damage_create(server_.get(), xcb_generate_id(server_.get()), made.window,
                              XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        } else if (type == XCB_CONFIGURE_NOTIFY) {
            const auto& placed = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
            windows_[placed.window].pixels = std::uint32_t{placed.width} * placed.height;
        } else if (type == XCB_MAP_NOTIFY) {
            windows_[reinterpret_cast<const xcb_map_notify_event_t&>(event).window].mapped = now;
        } else if (type == damageEvent_ + XCB_DAMAGE_NOTIFY) {
            const auto& drawn = reinterpret_cast<const xcb_damage_notify_event_t&>(event);
            Seen& seen = windows_[drawn.drawable];
            seen.drawn += std::uint64_t{drawn.area.width} * drawn.area.height;
            if (!seen.full && seen.drawn >= seen.pixels) {
                seen.full = now;
            }
        }
    }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> server_;
    int damageEvent_ = 0;
    std::uint32_t large_ = 0;
    std::map<xcb_window_t, Seen> windows_;
};

} // namespace

int main(int argumentCount, char** arguments) {
    Wakes wakes(argumentCount == 2 ? arguments[1] : "none");
    Screen screen;
    if (!wakes.isKnown() || !screen.isKnown()) {
        std::fputs("usage: break-watch PID, with DISPLAY set\n", stderr);
        return 64;
    }
    const Moment givenUp = Clock::now() + longestWait;
    std::optional<Moment> due;
    std::optional<Screen::Large> seen;
    while (Clock::now() < givenUp &&
           !(seen && (seen->full || Clock::now() > seen->lastMapped + longestFrame))) {
        screen.look();
        seen = screen.large();
        if (!seen) {
            wakes.look();
            due = wakes.last();
        }
        std::this_thread::sleep_for(betweenLooks);
    }
    if (!seen || !seen->full) {
        std::fputs("break-watch: no break came\n", stderr);
        return 1;
    }
    std::printf("%d %.1f %.1f %.1f\n", seen->count, milliseconds(seen->firstMapped - *due),
                milliseconds(seen->lastMapped - *due), milliseconds(*seen->full - *due));
}
