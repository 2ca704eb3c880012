#include "Quietlark/Settings/SettingsView.h"

#include "Quietlark/Settings/CrewCard.h"
#include "Quietlark/Surfaces/TextBlock.h"
#include "Quietlark/Theme/Controls/Segments.h"
#include "Quietlark/Theme/Controls/StickerSlider.h"
#include "Quietlark/Theme/Controls/StickerSwitch.h"
#include "Quietlark/Theme/Text.h"
#include "Quietlark/Windows/Choices.h"
#include "Quietlark/Windows/PaperCard.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace quietlark {

namespace {

constexpr int usualWidth = 620;
constexpr int edge = 24;
constexpr int groupGap = 16;
constexpr int soundsGap = 8; ///< above the switches that belong together
constexpr int sliderSteps = 100;

constexpr std::array nudgeChoices{0, 1, 2};
constexpr std::array appearances{wumble::Appearance::system, wumble::Appearance::light,
                                 wumble::Appearance::dark};

struct Sound {
    SettingsWords::Row words;
    bool wumble::WumbleSettings::*field;
};
constexpr std::array sounds{Sound{SettingsWords::breakSounds, &wumble::WumbleSettings::breakSoundsEnabled},
                            Sound{SettingsWords::alertSounds, &wumble::WumbleSettings::alertSoundsEnabled},
                            Sound{SettingsWords::nudgeSounds, &wumble::WumbleSettings::reminderSoundsEnabled},
                            Sound{SettingsWords::pokeSounds, &wumble::WumbleSettings::pokeSoundsEnabled}};

QLayout* row(const SettingsWords::Row& words, QWidget* control) {
    return paperRow(words.title, words.detail, control);
}

} // namespace

SettingsView::SettingsView(AppModel& model, LoginItem* loginItem, QWidget* parent)
    : PaperView(usualWidth, parent), model_(model), loginItem_(loginItem) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(edge, edge, edge, edge);
    column->setSpacing(groupGap);
    column->addWidget(breaks());
    column->addWidget(general());
    crew_ = new CrewCard(model);
    crew_->changedSize = [this] { wantsOtherSize(); };
    column->addWidget(crew_);
    column->addStretch(1);
    followed_.push_back(observe(model_.state().settings, [this] { refresh(); }));
    followed_.push_back(observe(model_.state().loginItemError, [this] { refresh(); }));
    refresh();
}

QWidget* SettingsView::breaks() {
    using wumble::WumbleSettings;
    auto* card = new PaperCard;
    QVBoxLayout* column = card->column();
    column->addWidget(new TextBlock(text(SettingsWords::breaks), {.token = TypeToken::title}));
    column->addLayout(
        numberRow(SettingsWords::quickEvery, {1200, 1800, 2700}, &WumbleSettings::workInterval));
    column->addLayout(
        numberRow(SettingsWords::quickLength, {20, 30, 45, 60}, &WumbleSettings::shortBreakDuration));
    column->addLayout(longEveryRow());
    column->addLayout(
        numberRow(SettingsWords::longLength, {180, 300, 600}, &WumbleSettings::longBreakDuration));
    column->addLayout(nudgesRow());
    return card;
}

QWidget* SettingsView::general() {
    auto* card = new PaperCard;
    QVBoxLayout* column = card->column();
    column->addWidget(new TextBlock(text(SettingsWords::general), {.token = TypeToken::title}));
    if (loginItem_ != nullptr) {
        column->addLayout(loginRow());
    }
    column->addLayout(appearanceRow());
    column->addLayout(volumeRow());
    column->addSpacing(soundsGap);
    column->addWidget(new TextBlock(text(SettingsWords::whatSounds),
                                    {.token = TypeToken::callout, .ink = Role::textMuted, .mostLines = 2}));
    for (const auto& [words, field] : sounds) {
        column->addLayout(soundRow(words, field));
    }
    return card;
}

QLayout* SettingsView::numberRow(const SettingsWords::Row& words, std::vector<double> choices,
                                 double wumble::WumbleSettings::*field) {
    const double current = settings().*field;
    if (std::ranges::find(choices, current) == choices.end()) {
        choices.insert(std::ranges::upper_bound(choices, current), current);
    }
    auto* made = new Segments;
    made->setChoices(durations(choices));
    made->chosen = [this, choices, field](int place) {
        model_.update([&](wumble::WumbleSettings& changed) {
            changed.*field = choices[static_cast<std::size_t>(place)];
        });
    };
    follow([this, made, choices, field] { made->setCurrent(placeOf(choices, settings().*field)); });
    return row(words, made);
}

/// Told as a time, and kept as so many stretches between quick breaks.
QLayout* SettingsView::longEveryRow() {
    constexpr auto& counts = wumble::WumbleSettings::longBreakEveryChoices;
    auto* made = new Segments;
    const auto lengths = [this] {
        std::vector<double> all(counts.size());
        std::ranges::transform(counts, all.begin(), [this](wumble::Counter count) {
            return settings().workInterval * static_cast<double>(count);
        });
        return all;
    };
    made->setChoices(durations(lengths()));
    made->chosen = [this, lengths](int place) {
        const double chosen = lengths()[static_cast<std::size_t>(place)];
        model_.update([&](wumble::WumbleSettings& changed) { changed.moveInterval = chosen; });
    };
    follow([this, made, lengths, shown = std::vector<double>()]() mutable {
        if (shown != lengths()) {
            shown = lengths();
            made->setChoices(durations(shown));
        }
        made->setCurrent(placeOf(shown, settings().moveInterval));
    });
    return row(SettingsWords::longEvery, made);
}

QLayout* SettingsView::nudgesRow() {
    auto* made = new Segments;
    made->setChoices({QStringLiteral("None"), QStringLiteral("1"), QStringLiteral("2")});
    made->chosen = [this](int place) {
        model_.update([&](wumble::WumbleSettings& changed) {
            changed.nudgesBetween = nudgeChoices.at(static_cast<std::size_t>(place));
        });
    };
    follow([this, made] { made->setCurrent(placeOf(nudgeChoices, settings().nudgesBetween)); });
    return row(SettingsWords::nudges, made);
}

QLayout* SettingsView::appearanceRow() {
    auto* made = new Segments;
    made->setChoices({QStringLiteral("System"), QStringLiteral("Light"), QStringLiteral("Dark")});
    made->chosen = [this](int place) {
        model_.update([&](wumble::WumbleSettings& changed) {
            changed.appearance = appearances.at(static_cast<std::size_t>(place));
        });
    };
    follow([this, made] { made->setCurrent(placeOf(appearances, settings().appearance)); });
    return row(SettingsWords::appearance, made);
}

QLayout* SettingsView::soundRow(const SettingsWords::Row& words, bool wumble::WumbleSettings::*field) {
    auto* made = new StickerSwitch(text(words.title));
    QObject::connect(made, &QAbstractButton::clicked, this, [this, field](bool on) {
        model_.update([&](wumble::WumbleSettings& changed) { changed.*field = on; });
    });
    follow([this, made, field] { made->setChecked(settings().*field); });
    return row(words, made);
}

QLayout* SettingsView::volumeRow() {
    auto* made = new StickerSlider(text(SettingsWords::volume.title));
    made->setRange(0, sliderSteps);
    made->setMinimumWidth(180);
    QObject::connect(made, &QAbstractSlider::valueChanged, this, [this](int value) {
        model_.update([&](wumble::WumbleSettings& changed) {
            changed.volume = static_cast<double>(value) / sliderSteps;
        });
    });
    follow([this, made] {
        const QSignalBlocker quiet(made);
        made->setValue(static_cast<int>(std::lround(settings().volume * sliderSteps)));
        made->update();
    });
    return row(SettingsWords::volume, made);
}

QLayout* SettingsView::loginRow() {
    auto* made = new StickerSwitch(text(SettingsWords::login.title));
    QObject::connect(made, &QAbstractButton::clicked, this, [this](bool on) {
        model_.setOpenAtLogin(on);
        refresh();
    });
    follow([this, made] { made->setChecked(loginItem_->isEnabled()); });
    auto* column = new QVBoxLayout;
    column->addLayout(row(SettingsWords::login, made));
    loginError_ = new TextBlock({}, {.token = TypeToken::callout, .mostLines = 4, .weight = QFont::DemiBold});
    column->addWidget(loginError_);
    return column;
}

void SettingsView::follow(std::function<void()> refresh) { controls_.push_back(std::move(refresh)); }

void SettingsView::refresh() {
    for (const auto& bringUpToDate : controls_) {
        bringUpToDate();
    }
    if (loginError_ != nullptr) {
        const auto& error = model_.state().loginItemError.value();
        loginError_->setText(QString::fromStdString(error.value_or("")));
        loginError_->setVisible(error.has_value());
    }
    wantsOtherSize();
}

} // namespace quietlark
