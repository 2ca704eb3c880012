#include "Quietlark/Platform/Linux/Proc/EvdevDevice.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <ctime>
#include <utility>

#include <fcntl.h>
#include <linux/input.h>
#include <sys/ioctl.h>

namespace quietlark {

namespace {

constexpr std::size_t batch = 64;
constexpr int mostBatches = 16; ///< of one device in one round
constexpr double longestDelay = 60;
constexpr std::uint32_t unheardTypes[] = {EV_REL, EV_ABS, EV_MSC, EV_LED, EV_SW};

/// Its clock goes on while the machine sleeps, as the main loop's does.
bool setClock(int file) {
    int clock = CLOCK_BOOTTIME;
    return ::ioctl(file, EVIOCSCLOCKID, &clock) == 0;
}

/// The kernel keeps few events for each reader: without this, a moving mouse would push its buttons out.
void hearOnlyKeys(int file) {
    for (const std::uint32_t type : unheardTypes) {
        const input_mask nothing{.type = type, .codes_size = 0, .codes_ptr = 0};
        ::ioctl(file, EVIOCSMASK, &nothing);
    }
}

double secondsNow() {
    timespec now{};
    ::clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

bool isPressed(const std::array<unsigned char, KEY_CNT / CHAR_BIT>& keys, unsigned code) {
    return (keys[code / CHAR_BIT] >> (code % CHAR_BIT) & 1) != 0;
}

} // namespace

EvdevDevice::EvdevDevice(wumble::FileDescriptor file)
    : file_(std::move(file)), tellsTime_(setClock(file_.get())) {
    hearOnlyKeys(file_.get());
    lookAtButtons();
}

std::optional<EvdevDevice> EvdevDevice::open(const std::string& path) {
    wumble::FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    return file.isOpen() ? std::optional(EvdevDevice(std::move(file))) : std::nullopt;
}

bool EvdevDevice::read(double uptime, const PressReader& reader) {
    std::array<input_event, batch> events{};
    for (int round = 0; round < mostBatches; ++round) {
        const ssize_t size = ::read(file_.get(), events.data(), sizeof events);
        if (size < 0) {
            return errno != ENODEV && errno != EBADF && errno != EIO;
        }
        const std::size_t count = static_cast<std::size_t>(size) / sizeof(input_event);
        for (std::size_t i = 0; i < count; ++i) {
            take(events[i], uptime, reader);
        }
        if (count < batch) {
            return true;
        }
    }
    return true;
}

void EvdevDevice::take(const input_event& event, double uptime, const PressReader& reader) {
    if (event.type == EV_SYN && event.code == SYN_DROPPED) {
        lookAtButtons();
    }
    if (event.type != EV_KEY) {
        return;
    }
    const bool isDown = event.value != 0;
    if (event.code == BTN_LEFT || event.code == BTN_RIGHT) {
        (event.code == BTN_LEFT ? leftHeld_ : rightHeld_) = isDown;
    }
    const bool isKey = event.code < BTN_MISC || event.code >= KEY_OK;
    if (isDown && isKey) {
        reader(Press::key, timeOf(event, uptime));
    } else if (isDown && event.code == BTN_LEFT) {
        reader(Press::leftButton, timeOf(event, uptime));
    } else if (isDown && event.code == BTN_RIGHT) {
        reader(Press::rightButton, timeOf(event, uptime));
    }
}

/// Events were lost, or had happened before: what is held now is what the kernel says.
void EvdevDevice::lookAtButtons() {
    std::array<unsigned char, KEY_CNT / CHAR_BIT> keys{};
    const bool isKnown = ::ioctl(file_.get(), EVIOCGKEY(sizeof keys), keys.data()) >= 0;
    leftHeld_ = isKnown && isPressed(keys, BTN_LEFT);
    rightHeld_ = isKnown && isPressed(keys, BTN_RIGHT);
}

/// By the event's own clock where that is known, else the time of reading it.
double EvdevDevice::timeOf(const input_event& event, double uptime) const {
    if (!tellsTime_) {
        return uptime;
    }
    const double told =
        static_cast<double>(event.input_event_sec) + static_cast<double>(event.input_event_usec) / 1e6;
    return uptime - std::clamp(secondsNow() - told, 0.0, longestDelay);
}

} // namespace quietlark
