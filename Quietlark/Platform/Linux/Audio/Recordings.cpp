#include "Quietlark/Platform/Linux/Audio/Recordings.h"

namespace quietlark {

namespace {

AppHints hints(const SoundClient& stream, const SoundClient& connection) {
    const bool isSandboxed = stream.isSandboxed || connection.isSandboxed;
    const int pid = stream.pid != 0 ? stream.pid : connection.pid;
    const auto& binary = stream.pid != 0 ? stream.binary : connection.binary;
    // The sandbox's identifier stands on the connection, and is worth more than what the stream says of itself.
    const bool connectionKnowsBest = connection.isSandboxed || !stream.appID;
    return {.pid = isSandboxed ? 0 : pid,
            .appID = connectionKnowsBest ? connection.appID : stream.appID,
            .windowClass = {},
            .name = stream.name ? stream.name : connection.name,
            .binary = isSandboxed ? std::nullopt : binary};
}

bool isTheServersOwn(const RecordingStream& stream, bool hasClient) {
    return stream.isPartOfFilter || (!hasClient && stream.program == SoundClient{});
}

} // namespace

std::vector<AppHints> Recordings::listening(int ownProcess) const {
    std::vector<AppHints> found;
    for (const auto& [index, stream] : streams) {
        const auto source = isMonitor.find(stream.source);
        const bool hearsAMicrophone =
            source != isMonitor.end() && !source->second && !stream.takesWhatIsPlayed;
        const auto client = clients.find(stream.client);
        if (stream.isPaused || stream.isLevelMeter || !hearsAMicrophone ||
            isTheServersOwn(stream, client != clients.end())) {
            continue;
        }
        AppHints program = hints(stream.program, client == clients.end() ? SoundClient{} : client->second);
        if (program.pid != ownProcess) {
            found.push_back(std::move(program));
        }
    }
    return found;
}

} // namespace quietlark
