#include "Quietlark/Theme/Controls/Segments.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/ControlFace.h"
#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QHBoxLayout>
#include <QPainter>

namespace quietlark {

namespace {

constexpr double air = 6;
constexpr double sidePadding = 12;
constexpr double inset = 4; ///< of the chosen one in the common track
constexpr double widest = 200;

TextStyle words(Role ink) {
    return {.token = TypeToken::callout, .ink = ink, .alignment = Qt::AlignCenter, .weight = QFont::DemiBold};
}

} // namespace

class SegmentChoice : public PressControl {
public:
    explicit SegmentChoice(const QString& text, QWidget* parent) : PressControl(parent) {
        setText(text);
        setCheckable(true);
        setAutoExclusive(true);
        setContentsMargins(0, 0, 0, 0);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override {
        const QSizeF size = measureText(text(), words(Role::text), widest, appearance());
        return (size + QSizeF(2 * sidePadding, 2 * air)).toSize();
    }

    QSize minimumSizeHint() const override {
        return {4 * static_cast<int>(sidePadding), sizeHint().height()};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const Appearance look = appearance();
        QPainter painter(this);
        if (isChecked()) {
            drawSticker(
                painter, face(),
                {.fill = Surface::selected, .radius = Radius::small, .lift = Lift::flat, .outline = 0}, look);
        } else {
            drawQuietFace(painter, face(), Radius::small, offset(), look);
        }
        const Role colour = isChecked() ? Role::onSelected : isEnabled() ? Role::text : Role::textMuted;
        drawText(painter, face().adjusted(inset, 0, -inset, 0), text(), words(colour), look);
        if (showsFocus()) {
            const double reach = focusRingReach;
            QPen ring(quietlark::colour(isChecked() ? Role::onSelected : Role::line, look), 2);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(ring);
            painter.drawRoundedRect(face().adjusted(reach, reach, -reach, -reach), reach, reach);
        }
    }
};

Segments::Segments(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    const int around = static_cast<int>(inset);
    row->setContentsMargins(around, around, around, around);
    row->setSpacing(2);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void Segments::setChoices(const QStringList& choices) {
    qDeleteAll(choices_);
    choices_.clear();
    for (const QString& text : choices) {
        auto* choice = new SegmentChoice(text, this);
        const int place = static_cast<int>(choices_.size());
        connect(choice, &QAbstractButton::toggled, this, [this, place](bool on) {
            stopAtChosen();
            if (on && chosen) {
                chosen(place);
            }
        });
        choices_.append(choice);
        layout()->addWidget(choice);
    }
    setCurrent(0);
}

void Segments::setCurrent(int place) {
    if (place < 0 || place >= choices_.size()) {
        return;
    }
    auto report = std::exchange(chosen, nullptr);
    choices_[place]->setChecked(true);
    chosen = std::move(report);
}

void Segments::stopAtChosen() {
    for (SegmentChoice* choice : choices_) {
        choice->setFocusPolicy(choice->isChecked() || current() < 0 ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

int Segments::current() const {
    for (int place = 0; place < choices_.size(); ++place) {
        if (choices_[place]->isChecked()) {
            return place;
        }
    }
    return -1;
}

void Segments::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawSticker(painter, rect(), {.fill = Surface::paper, .radius = Radius::control, .lift = Lift::flat},
                appearanceOf(*this));
}

} // namespace quietlark
