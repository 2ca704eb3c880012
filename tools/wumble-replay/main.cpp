#include "tools/wumble-replay/Replay.h"

#include <iostream>

namespace {

constexpr int wrongUsage = 64;

int replayInput() {
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    wumble::replay::Replay replay;
    std::string line;
    for (std::size_t number = 1; std::getline(std::cin, line); ++number) {
        if (const auto answer = replay.answer(line, number)) {
            std::cout << *answer << '\n';
        }
        // Whoever waits for an answer before the next line must get it.
        if (std::cin.rdbuf()->in_avail() <= 0) {
            std::cout.flush();
        }
    }
    std::cout.flush();
    return replay.hadErrors() || !std::cout ? 1 : 0;
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount == 1) {
        return replayInput();
    }
    const std::string_view option = arguments[1];
    if (option == "--help" && argumentCount == 2) {
        std::cout << wumble::replay::Replay::help();
        return 0;
    }
    std::cerr << "wumble-replay: unknown option \"" << option << "\"; --help prints the commands\n";
    return wrongUsage;
}
