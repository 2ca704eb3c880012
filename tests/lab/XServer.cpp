#include "tests/lab/XServer.h"

#include <csignal>
#include <filesystem>

namespace quietlark::lab {

XServer::XServer() { start({}); }

void XServer::start(const std::vector<std::string>& display) {
    std::vector<std::string> command{"Xvfb"};
    command.insert(command.end(), display.begin(), display.end());
    for (const char* option :
         {"-displayfd", "1", "-screen", "0", "1600x900x24", "-noreset", "-nolisten", "tcp"}) {
        command.emplace_back(option);
    }
    process_ = std::make_unique<LabProcess>(command);
    number_ = process_->readLine(30).value_or("");
}

void XServer::kill() {
    process_->signal(SIGKILL);
    process_->wait();
}

void XServer::restart() {
    std::error_code ignored;
    std::filesystem::remove("/tmp/.X" + number_ + "-lock", ignored);
    start({display()});
}

std::string XServer::run(const std::vector<std::string>& command) const {
    return outputOf(command, environment());
}

} // namespace quietlark::lab
