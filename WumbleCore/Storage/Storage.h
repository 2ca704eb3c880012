#pragma once

#include "WumbleCore/Engine/EngineSnapshot.h"
#include "WumbleCore/Engine/WumbleSettings.h"
#include "WumbleCore/Foundation/JsonCoding.h"
#include "WumbleCore/Life/WumbleLife.h"
#include "WumbleCore/Storage/BreakRecord.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace wumble {

/// The one folder of plain files in which everything is remembered. Silent by design: a load that fails gives
/// a fresh value, a save that fails is dropped, and the program runs on from memory. Called from the main
/// thread only.
class Storage {
public:
    /// `WUMBLE_DATA_DIR` as it stands where it is set and not empty, otherwise the folder "Quietlark" of the
    /// person's data folder: `XDG_DATA_HOME`, or ".local/share" in their home.
    static std::filesystem::path defaultDirectory();

    /// Creates the folder and its parents where they are missing.
    explicit Storage(std::filesystem::path directory);
    Storage(const Storage&) = delete;
    Storage& operator=(const Storage&) = delete;

    const std::filesystem::path& directory() const { return directory_; }

    /// Whether there is a settings file, whatever it holds.
    bool hasSavedSettings() const;

    /// The defaults when there is no file or none that can be read.
    WumbleSettings loadSettings() const;
    void save(const WumbleSettings& settings) const;

    /// A fresh one when the file is missing or can't be read.
    WumbleLife loadLife() const;
    void save(const WumbleLife& life) const;

    /// Absent when the file is missing or can't be read.
    std::optional<EngineSnapshot> loadSnapshot() const;
    void save(const EngineSnapshot& snapshot) const;

    void append(const BreakRecord& record) const;

    /// By start; lines that can't be read are left out. Empty without a file.
    std::vector<BreakRecord> loadHistory() const;

private:
    std::filesystem::path file(const char* name) const { return directory_ / name; }
    template <class Value> std::optional<Value> loadWhole(const char* name) const;
    template <class Value> void saveWhole(const char* name, const Value& value) const;

    std::filesystem::path directory_;
    JsonEncoder encoder_{DateForm::iso8601};
    JsonDecoder decoder_{DateForm::iso8601};
};

} // namespace wumble
