#include "tests/lab/PrivateBus.h"

namespace quietlark::lab {

namespace {

// Anybody may do anything, and nothing is started by its name.
std::string configuration(const std::string& address) {
    return "<busconfig><type>session</type><listen>" + address +
           R"(</listen><auth>EXTERNAL</auth><policy context="default">
  <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/><allow user="*"/>
</policy></busconfig>
)";
}

} // namespace

PrivateBus::PrivateBus() : address_("unix:path=" + (folder_ / "bus").string()) {
    wumble::test::write(folder_ / "bus.conf", configuration(address_));
    start();
}

void PrivateBus::start() {
    std::filesystem::remove(folder_ / "bus");
    daemon_ = std::make_unique<LabProcess>(
        std::vector<std::string>{"dbus-daemon", "--config-file=" + (folder_ / "bus.conf").string(),
                                 "--nofork", "--nosyslog", "--print-address=1"});
    daemon_->readLine();
}

std::string PrivateBus::call(const std::string& service, const std::string& path, const std::string& member,
                             const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = {
        "dbus-send", "--bus=" + address_, "--print-reply=literal", "--dest=" + service, path, member};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return outputOf(command);
}

} // namespace quietlark::lab
