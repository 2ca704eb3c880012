#include "tests/lab/PrivateLogind.h"

#include <cstdlib>
#include <unistd.h>

namespace quietlark::lab {

namespace {

const std::string logind = "/lib/systemd/systemd-logind";

} // namespace

std::string PrivateLogind::whyNot() {
    if (access(logind.c_str(), X_OK) != 0) {
        return "systemd-logind isn't installed";
    }
    if (outputOf({"unshare", "-m", "sh", "-c", "mount -t tmpfs tmpfs /sys/power && echo mounted"}).empty()) {
        return "folders can't be mounted for one process alone here, which root may";
    }
    const std::string imports = "import dbus, dbus.mainloop.glib, gi; print('there')";
    return outputOf({"/usr/bin/python3", "-c", imports}).empty()
               ? "python3-dbus and python3-gi aren't installed"
               : "";
}

PrivateLogind::PrivateLogind() {
    const auto script = std::filesystem::path(__FILE__).parent_path() / "private_logind.py";
    lab_ = std::make_unique<LabProcess>(std::vector<std::string>{"unshare", "-m", "/usr/bin/python3",
                                                                 script.string(), folder_.path().string()},
                                        bus_.asSystem(), folder_.path().string());
    const std::string told = lab_->readLine(20).value_or(" ");
    sessionID_ = told.substr(0, told.find(' '));
    sessionPath_ = told.substr(told.find(' ') + 1);
}

void PrivateLogind::order(const std::string& words) const {
    lab_->writeLine(words);
    lab_->readLine(20);
}

void PrivateLogind::setLocked(bool locked) const { order(locked ? "lock 1" : "lock 0"); }

void PrivateLogind::suspend() const { order("suspend"); }

void PrivateLogind::stop() const { order("stop"); }

void PrivateLogind::start() const { order("start"); }

} // namespace quietlark::lab
