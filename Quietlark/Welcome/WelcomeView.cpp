#include "Quietlark/Welcome/WelcomeView.h"

#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Surfaces/TextBlock.h"
#include "Quietlark/Surfaces/Tray/MenuRow.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/Segments.h"
#include "Quietlark/Theme/Controls/StickerButton.h"
#include "Quietlark/Theme/Controls/StickerSwitch.h"
#include "Quietlark/Theme/Text.h"
#include "Quietlark/Windows/Choices.h"
#include "Quietlark/Windows/PaperCard.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quietlark {

namespace {

constexpr int usualWidth = 560;
constexpr int edge = 24;
constexpr int groupGap = 14;
constexpr int petSize = 148;
constexpr double previewLength = 12; ///< seconds

template <class Layout> Layout* bare(QWidget* widget, int spacing = 0) {
    auto* layout = new Layout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QLayout* detailRow(const WelcomeWords::Row& row, QWidget* control) {
    return paperRow(row.title, row.detail, control);
}

TextBlock* words(std::string_view said, const TextStyle& style) { return new TextBlock(text(said), style); }

const TextStyle strong = {.mostLines = 2, .weight = QFont::DemiBold};
const TextStyle summary = {.token = TypeToken::body, .ink = Role::textMuted, .mostLines = 3};

} // namespace

WelcomeView::WelcomeView(AppModel& model, LoginItem* loginItem, QWidget* parent)
    : PaperView(usualWidth, parent), model_(model), loginItem_(loginItem),
      form_(model.state().settings.value()) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(edge, edge, edge, edge);
    column->setSpacing(groupGap);
    column->addWidget(hello());
    column->addWidget(rhythmCard());
    if (loginItem_ != nullptr) {
        column->addWidget(loginCard());
    }
    column->addWidget(actions());
    column->addStretch(1);
    loginErrorWatch_ = observe(model_.state().loginItemError, [this] { refresh(); });
    refresh();
}

QWidget* WelcomeView::hello() {
    auto* row = new QWidget;
    auto* layout = bare<QHBoxLayout>(row, 16);
    pet_ = new WumbleView(model_.state().today.value());
    pet_->setFixedSize(petSize, petSize);
    pet_->setMood(wumble::WumbleMood::peek);
    layout->addWidget(pet_);
    auto* said = new QVBoxLayout;
    said->setSpacing(8);
    said->addStretch(1);
    said->addWidget(
        words(WelcomeWords::hello, {.token = TypeToken::windowTitle, .mostLines = 2, .balanced = true}));
    said->addWidget(words(WelcomeWords::introduction, {.token = TypeToken::body, .mostLines = 8}));
    said->addStretch(1);
    layout->addLayout(said, 1);
    return row;
}

QWidget* WelcomeView::rhythmCard() {
    auto* card = new PaperCard;
    QVBoxLayout* column = card->column();
    column->addWidget(words(WelcomeWords::pickARhythm, {.token = TypeToken::title}));
    column->addWidget(choices(form_.quickEvery(), everySoOften(form_.quickEvery()), form_.rhythm().quickEvery,
                              &WelcomeForm::chooseQuickEvery));
    quick_ = new TextBlock({}, summary);
    long_ = new TextBlock({}, summary);
    column->addWidget(summaries());
    fold_ = new MenuRow(text(WelcomeWords::customize));
    fold_->setContentsMargins(0, 0, 0, 0);
    QObject::connect(fold_, &QAbstractButton::clicked, this, [this] { customize(!customizing_); });
    auto* fold = new QHBoxLayout; // its words stand below the others
    fold->addSpacing(-MenuRow::sidePadding);
    fold->addWidget(fold_);
    fold->addSpacing(-MenuRow::sidePadding);
    column->addLayout(fold);
    details_ = details();
    column->addWidget(details_);
    column->addWidget(
        words(WelcomeWords::later, {.token = TypeToken::caption, .ink = Role::textMuted, .mostLines = 2}));
    customize(false);
    return card;
}

QWidget* WelcomeView::summaries() {
    auto* both = new QWidget;
    auto* grid = bare<QGridLayout>(both, 6);
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    grid->addWidget(words(WelcomeWords::quickBreaks, strong), 0, 0);
    grid->addWidget(quick_, 0, 1);
    grid->addWidget(words(WelcomeWords::longBreaks, strong), 1, 0);
    grid->addWidget(long_, 1, 1);
    return both;
}

QWidget* WelcomeView::details() {
    auto* rows = new QWidget;
    auto* column = bare<QVBoxLayout>(rows, 10);
    const WelcomeRhythm& now = form_.rhythm();
    column->addLayout(
        detailRow(WelcomeWords::quickLength, choices(form_.quickLengths(), durations(form_.quickLengths()),
                                                     now.quickLength, &WelcomeForm::chooseQuickLength)));
    column->addLayout(
        detailRow(WelcomeWords::longLength, choices(form_.longLengths(), durations(form_.longLengths()),
                                                    now.longLength, &WelcomeForm::chooseLongLength)));
    column->addLayout(detailRow(WelcomeWords::nudges, nudges()));
    return rows;
}

Segments* WelcomeView::choices(const std::vector<double>& seconds, const QStringList& words, double current,
                               void (WelcomeForm::*choose)(double)) {
    auto* made = new Segments;
    made->setChoices(words);
    made->setCurrent(placeOf(seconds, current));
    made->chosen = [this, &seconds, choose](int place) {
        (form_.*choose)(seconds[static_cast<std::size_t>(place)]);
        refresh();
    };
    return made;
}

Segments* WelcomeView::nudges() {
    auto* made = new Segments;
    made->setChoices({QStringLiteral("None"), QStringLiteral("1"), QStringLiteral("2")});
    made->setCurrent(placeOf(WelcomeForm::nudgeChoices, form_.rhythm().nudges));
    made->chosen = [this](int place) {
        form_.chooseNudges(WelcomeForm::nudgeChoices.at(static_cast<std::size_t>(place)));
        refresh();
    };
    return made;
}

QWidget* WelcomeView::loginCard() {
    auto* card = new PaperCard;
    login_ = new StickerSwitch(text(WelcomeWords::login));
    login_->setChecked(loginItem_->isEnabled());
    QObject::connect(login_, &QAbstractButton::clicked, this, [this](bool on) { switchLogin(on); });
    card->column()->addLayout(paperRow(WelcomeWords::login, WelcomeWords::loginDetail, login_));
    loginError_ = new TextBlock({}, {.token = TypeToken::callout, .mostLines = 4, .weight = QFont::DemiBold});
    card->column()->addWidget(loginError_);
    return card;
}

/// Done at once, so that what stands in its way is told while the switch is still in sight.
void WelcomeView::switchLogin(bool on) {
    model_.setOpenAtLogin(on);
    openAtLogin_ = loginItem_->isEnabled();
    login_->setChecked(*openAtLogin_);
}

QWidget* WelcomeView::actions() {
    auto* row = new QWidget;
    auto* layout = bare<QHBoxLayout>(row);
    auto* preview = new StickerButton(text(WelcomeWords::previewABreak), StickerButton::Kind::quiet);
    auto* look = new StickerButton(text(WelcomeWords::lookAround), StickerButton::Kind::plain);
    auto* start = new StickerButton(text(WelcomeWords::startBreaks), StickerButton::Kind::primary);
    QObject::connect(preview, &QAbstractButton::clicked, this,
                     [this] { model_.startPreview(previewLength); });
    QObject::connect(look, &QAbstractButton::clicked, this,
                     [this] { done(AppModel::AfterWelcome::staySleeping); });
    QObject::connect(start, &QAbstractButton::clicked, this, [this] { done(AppModel::AfterWelcome::wake); });
    layout->addWidget(preview);
    layout->addStretch(1);
    layout->addWidget(look);
    layout->addWidget(start);
    return row;
}

void WelcomeView::customize(bool open) {
    customizing_ = open;
    details_->setVisible(open);
    fold_->setText(text(open ? WelcomeWords::fewerOptions : WelcomeWords::customize));
    fold_->setUnfolded(open);
    fold_->setToolTip(text(open ? WelcomeWords::fewerOptionsHint : WelcomeWords::customizeHint));
    fold_->setAccessibleDescription(fold_->toolTip());
    wantsOtherSize();
}

void WelcomeView::refresh() {
    quick_->setText(QString::fromStdString(form_.quickSummary()));
    long_->setText(QString::fromStdString(form_.longSummary()));
    pet_->setAppearance(appearanceOf(*this));
    if (loginError_ != nullptr) {
        const auto& error = model_.state().loginItemError.value();
        loginError_->setText(QString::fromStdString(error.value_or("")));
        loginError_->setVisible(error.has_value());
    }
    wantsOtherSize();
}

std::optional<WelcomeRhythm> WelcomeView::rhythm() const {
    return form_.isTouched() ? std::optional(form_.rhythm()) : std::nullopt;
}

} // namespace quietlark
