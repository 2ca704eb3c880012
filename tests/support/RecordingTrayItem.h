#pragma once

#include "Quietlark/Platform/TrayItem.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quietlark::test {

/// A tray item that keeps what is written to it and is clicked by hand.
class RecordingTrayItem : public TrayItem {
public:
    bool isShown() const override { return shown; }
    std::optional<bool> isPanelDark() const override { return std::nullopt; }
    void setPictures(std::vector<QImage> given) override {
        pictures = std::move(given);
        ++pictureWrites;
    }
    void setTitle(const std::string& given) override { titles.push_back(given); }
    void setLabel(const std::string& given) override { labels.push_back(given); }
    void setMenu(std::vector<TrayMenuRow> given) override { menu = std::move(given); }
    void observeActivation(Activated given) override { activated = std::move(given); }

    bool shown = true;
    std::vector<QImage> pictures;
    int pictureWrites = 0;
    std::vector<std::string> titles; ///< every one that was written
    std::vector<std::string> labels;
    std::vector<TrayMenuRow> menu;
    Activated activated;
};

} // namespace quietlark::test
