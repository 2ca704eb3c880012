#include "tools/wumble-timeline/Timeline.h"

#include <fstream>
#include <iostream>

namespace {

constexpr int wrongUsage = 64;
constexpr int noInput = 66;

bool isBlank(const std::string& line) { return line.find_first_not_of(" \t\r") == std::string::npos; }

/// Each line of the recording that is a command has its answer on the next line of the standard input.
int tellRecording(std::istream& recording) {
    wumble::timeline::Timeline timeline(std::cout);
    std::string line;
    std::string answer;
    while (std::getline(recording, line)) {
        if (line.starts_with('#')) {
            timeline.tellComment(std::string_view(line).substr(1));
            continue;
        }
        if (isBlank(line)) {
            continue;
        }
        if (!std::getline(std::cin, answer)) {
            std::cerr << "wumble-timeline: the answers end before the recording does\n";
            return 1;
        }
        const wumble::Json nothing;
        timeline.tell(wumble::parseJson(line).value.value_or(nothing),
                      wumble::parseJson(answer).value.value_or(nothing));
    }
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2 || arguments[1][0] == '-') {
        std::cerr << "usage: wumble-replay < RECORDING | wumble-timeline RECORDING\n";
        return wrongUsage;
    }
    std::ifstream recording(arguments[1]);
    if (!recording) {
        std::cerr << "wumble-timeline: can't read " << arguments[1] << "\n";
        return noInput;
    }
    return tellRecording(recording);
}
