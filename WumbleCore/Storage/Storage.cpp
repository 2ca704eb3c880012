#include "WumbleCore/Storage/Storage.h"
#include "WumbleCore/Storage/BreakHistory.h"
#include "WumbleCore/Storage/Files.h"

#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace wumble {

namespace {

constexpr auto settingsFile = "settings.json";
constexpr auto engineFile = "engine.json";
constexpr auto lifeFile = "wumble.json";
constexpr auto historyFile = "history.jsonl";
constexpr auto folderName = "Quietlark";

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::filesystem::path homeFolder() {
    if (std::filesystem::path home = environment("HOME"); home.is_absolute()) {
        return home;
    }
    const passwd* account = ::getpwuid(::getuid());
    return account != nullptr ? account->pw_dir : "/";
}

} // namespace

std::filesystem::path Storage::defaultDirectory() {
    if (const auto chosen = environment("WUMBLE_DATA_DIR"); !chosen.empty()) {
        return chosen;
    }
    // A relative data folder counts as unset, as the base directories of the desktop have it.
    if (const std::filesystem::path data = environment("XDG_DATA_HOME"); data.is_absolute()) {
        return data / folderName;
    }
    return homeFolder() / ".local" / "share" / folderName;
}

Storage::Storage(std::filesystem::path directory) : directory_(std::move(directory)) {
    std::error_code ignored;
    std::filesystem::create_directories(directory_, ignored);
}

bool Storage::hasSavedSettings() const {
    std::error_code ignored;
    return std::filesystem::exists(file(settingsFile), ignored);
}

WumbleSettings Storage::loadSettings() const {
    const auto bytes = readWholeFile(file(settingsFile));
    return bytes ? WumbleSettings::decode(*bytes) : WumbleSettings{};
}

void Storage::save(const WumbleSettings& settings) const { saveWhole(settingsFile, settings); }

WumbleLife Storage::loadLife() const { return loadWhole<WumbleLife>(lifeFile).value_or(WumbleLife{}); }

void Storage::save(const WumbleLife& life) const { saveWhole(lifeFile, life); }

std::optional<EngineSnapshot> Storage::loadSnapshot() const { return loadWhole<EngineSnapshot>(engineFile); }

void Storage::save(const EngineSnapshot& snapshot) const { saveWhole(engineFile, snapshot); }

void Storage::append(const BreakRecord& record) const {
    if (const auto line = encoder_.encode(record).text()) {
        appendLine(file(historyFile), *line);
    }
}

std::vector<BreakRecord> Storage::loadHistory() const {
    BreakHistoryReader reader;
    const bool isComplete =
        readInPieces(file(historyFile), [&](std::string_view piece) { reader.feed(piece); });
    return isComplete ? reader.finish() : std::vector<BreakRecord>{};
}

template <class Value> std::optional<Value> Storage::loadWhole(const char* name) const {
    const auto bytes = readWholeFile(file(name));
    const auto json = bytes ? parseJson(*bytes).value : std::nullopt;
    return json ? decoder_.decode<Value>(*json) : std::nullopt;
}

template <class Value> void Storage::saveWhole(const char* name, const Value& value) const {
    if (const auto text = encoder_.encode(value).text()) {
        replaceWholeFile(file(name), *text);
    }
}

} // namespace wumble
