#include "Quietlark/Surfaces/Notes/NoteStage.h"

#include "Quietlark/Theme/AppearanceScope.h"

#include <QGraphicsEffect>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace quietlark {

namespace {

QPainterPath rounded(const QRectF& rect, double radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

/// A transform of the stage as one of a widget that stands at `place` in it.
QTransform seenFrom(QPointF place, const QTransform& transform) {
    return QTransform::fromTranslate(place.x(), place.y()) * transform *
           QTransform::fromTranslate(-place.x(), -place.y());
}

} // namespace

/// Draws the content where the pose has it, while the widget itself stays in place.
class NoteStage::Moved final : public QGraphicsEffect {
public:
    explicit Moved(const NoteStage& stage) : stage_(stage) {}

    /// All of the stage, seen from wherever the content's rectangle is given.
    QRectF boundingRectFor(const QRectF& content) const override {
        const QRectF place = stage_.content_->geometry();
        const QRectF whole = stage_.rect();
        return content.adjusted(whole.left() - place.left(), whole.top() - place.top(),
                                whole.right() - place.right(), whole.bottom() - place.bottom());
    }

protected:
    void draw(QPainter* painter) override {
        const auto pose = stage_.pose();
        QPoint corner;
        const QPixmap content = sourcePixmap(Qt::LogicalCoordinates, &corner, QGraphicsEffect::NoPad);
        painter->save();
        painter->setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
        painter->setOpacity(pose.opacity);
        painter->setTransform(seenFrom(stage_.content_->pos(), stage_.moved(pose)), true);
        painter->drawPixmap(corner, content);
        painter->translate(-stage_.content_->pos());
        stage_.drawLids(*painter, pose.shut);
        painter->restore();
    }

private:
    const NoteStage& stage_;
};

NoteStage::NoteStage(std::unique_ptr<QWidget> content, std::shared_ptr<ObservedPresence> presence,
                     NoteSetting setting, const MainLoop& loop)
    : presence_(std::move(presence)), setting_(std::move(setting)), loop_(loop), content_(content.release()),
      effect_(new Moved(*this)), frames_(loop, [this](double) { frame(); }) {
    setAttribute(Qt::WA_TranslucentBackground);
    content_->setParent(this);
    content_->setGeometry(setting_.card.toAlignedRect());
    content_->setGraphicsEffect(effect_);
    effect_->setEnabled(false);
    keep(observe(*presence_, [this] { begin(); }));
    begin();
}

/// The effect asks the stage where it is until it is gone.
NoteStage::~NoteStage() { content_->setGraphicsEffect(nullptr); }

void NoteStage::setUnblended(std::function<void(double)> carry) {
    carry_ = std::move(carry);
    begin();
}

void NoteStage::keep(QPropertyNotifier observer) { observers_.push_back(std::move(observer)); }

bool NoteStage::isStill() const { return carry_ || appearanceOf(*this).reduceMotion; }

wumble::NotePose NoteStage::pose() const {
    auto pose = presence_->value().pose(loop_.now(), isStill());
    if (carry_) {
        pose.opacity = 1;
    }
    return pose;
}

double NoteStage::elapsed() const {
    const double since = loop_.now() - presence_->value().arrived;
    return isStill() ? setting_.hangsFor : std::max(since, 0.0);
}

wumble::Date NoteStage::movingUntil() const {
    const auto& presence = presence_->value();
    const bool swings = setting_.hang && !presence.left && !isStill();
    return swings ? std::max(presence.movingUntil(), presence.arrived + setting_.hangsFor)
                  : presence.movingUntil();
}

void NoteStage::begin() {
    frame();
    if (isVisible() && effect_->isEnabled()) {
        frames_.start(setting_.refreshRate);
    }
}

void NoteStage::frame() {
    const auto& presence = presence_->value();
    const auto now = loop_.now();
    // A clock that the person set back would have it move for as long again.
    const bool isMoving = now < movingUntil() && now >= presence.left.value_or(presence.arrived);
    const bool isGone = presence.left && !isMoving;
    if (!isMoving) {
        frames_.stop();
    }
    effect_->setEnabled(isMoving || isGone || setting_.hang);
    effect_->update();
    if (setting_.sizePet) {
        setting_.sizePet(pose().wumble);
    }
    if (carry_) {
        carry_(presence.pose(now, true).opacity);
    }
    update();
}

void NoteStage::showEvent(QShowEvent*) { begin(); }

void NoteStage::hideEvent(QHideEvent*) { frames_.stop(); }

QTransform NoteStage::moved(const wumble::NotePose& pose) const {
    const auto& card = setting_.card;
    const QPointF anchor(card.x() + card.width() * setting_.anchor.x(),
                         card.y() + card.height() * setting_.anchor.y());
    QTransform transform;
    transform.translate(anchor.x(), anchor.y() + pose.drop);
    transform.rotate(pose.tilt);
    transform.scale(pose.scale, pose.scale * pose.squash);
    transform.translate(-anchor.x(), -anchor.y());
    return setting_.hang ? transform * setting_.hang(elapsed()) : transform;
}

void NoteStage::paintEvent(QPaintEvent*) {
    const auto now = pose();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(now.opacity);
    if (setting_.drawString) {
        painter.save();
        setting_.drawString(painter, moved(now));
        painter.restore();
    }
    drawShadow(painter, now);
}

void NoteStage::drawShadow(QPainter& painter, const wumble::NotePose& pose) const {
    if (setting_.lift < 0) {
        return;
    }
    const double height = setting_.lift + pose.air;
    const auto& card = setting_.card;
    const auto place = moved(pose);
    const auto shape = place.map(rounded(card, setting_.radius)).translated(height, height);
    // Not under the card: a note that fades would let it through.
    constexpr double underTheEdge = 1;
    const auto inside = card.adjusted(underTheEdge, underTheEdge, -underTheEdge, -underTheEdge);
    painter.fillPath(shape.subtracted(place.map(rounded(inside, setting_.radius - underTheEdge))),
                     colour(Role::shadow, appearanceOf(*this)));
}

void NoteStage::drawLids(QPainter& painter, double shut) const {
    if (shut > 0 && setting_.drawLids) {
        painter.setClipPath(rounded(setting_.card, setting_.radius));
        setting_.drawLids(painter, setting_.card, shut);
    }
}

QRegion NoteStage::outline() const {
    const auto card = rounded(setting_.card, setting_.radius);
    const double lift = std::max(setting_.lift, 0.0);
    const auto whole = card.united(card.translated(lift, lift)).simplified();
    return QRegion(whole.toFillPolygon().toPolygon()).united(setting_.besides);
}

std::unique_ptr<HostedSurface> hostNote(const SurfaceContext& context, std::unique_ptr<QWidget> content,
                                        std::shared_ptr<ObservedPresence> presence, NoteSetting setting,
                                        const SurfaceStyle& style) {
    auto made = std::make_unique<NoteStage>(std::move(content), std::move(presence), std::move(setting),
                                            context.loop);
    NoteStage* stage = made.get();
    setAppearance(*stage, context.appearance.value());
    stage->keep(observe(context.appearance, [stage, &appearance = context.appearance] {
        setAppearance(*stage, appearance.value());
    }));
    auto surface = context.host.host(std::move(made), style);
    surface->setOutline(stage->outline());
    if (!context.host.blends()) {
        stage->setUnblended([carrier = surface.get()](double opacity) { carrier->setOpacity(opacity); });
    }
    return surface;
}

} // namespace quietlark
