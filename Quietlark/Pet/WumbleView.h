#pragma once

#include "Quietlark/Pet/JellyMemory.h"
#include "Quietlark/Pet/SoftWumble.h"
#include "Quietlark/Theme/Appearance.h"
#include "WumbleCore/Foundation/Random.h"
#include "WumbleCore/Motion/WumbleJelly.h"

#include <QTimer>
#include <QWidget>
#include <functional>

namespace quietlark {

/// The time that pets live by: seconds that only go forward. Stills and films put their own in.
struct WumbleClock {
    std::function<double()> now;
    double start = 0;
};

/// That of the machine, or what `WumbleView::usualTime` tells.
WumbleClock usualClock();

/// One pet in a widget: it moves in its mood, follows the pointer, and answers when it is poked.
class WumbleView : public QWidget {
public:
    explicit WumbleView(const wumble::WumbleDay& day, QWidget* parent = nullptr);

    /// Told of every gesture that a poke brings, for the sound of it.
    static std::function<void(wumble::WumbleGesture)> onPoke;

    /// Where the pointer is on the desktop, for pets that follow it; they look straight ahead while nobody tells.
    static std::function<std::optional<QPointF>()> desktopPointer;

    /// The time of all pets that aren't given a clock, for those who move it by hand; that of the machine by default.
    static std::function<double()> usualTime;

    void setDay(const wumble::WumbleDay& day);
    void setMood(wumble::WumbleMood mood);
    void setCalm(bool calm);
    /// Without one it has that of the widgets it is in.
    void setAppearance(const Appearance& appearance);
    void setClock(WumbleClock clock);
    void setRandom(wumble::Random random);
    void setFamilyName(const QString& name); ///< "Wumble" unless the person named them
    void setFollowsPointer(bool follows);
    void setGaze(std::optional<wumble::Point> gaze); ///< instead of the pointer
    void setPokable(bool pokable);

    /// The part of the widget on each side that is left free for hops and stretches, 0 to below a half.
    void setRoom(double room);

    /// Plays a gesture `after` seconds from now; one that needs paws only when the pet has some.
    void react(wumble::WumbleGesture gesture, double after = 0);

    /// A playful click: a gesture from the list of silly ones, another one than last time.
    void poke();

    const wumble::WumbleDay& day() const { return doing_.day; }
    wumble::WumbleMood mood() const { return doing_.mood; }

    /// What is drawn at that time; the same time gives the same pose at any frame rate.
    WumblePose pose(double now);

    /// With reduced motion a pet asks for frames only while its face changes.
    bool isMoving(double now) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    WumblePose firmPose(double now, const Look& pointer, bool reduceMotion) const;
    Look pointerLook() const;
    double pulledBy(double now, bool reduceMotion) const;
    bool isLively(double now) const;
    void say();
    void nextFrame();
    void keepMoving();

    WumbleClock clock_ = usualClock();
    wumble::Random random_;
    QString familyName_;
    Doing doing_;
    JellyMemory memory_;
    std::optional<wumble::Point> gaze_;
    std::optional<QPointF> pressedAt_;
    double pull_ = 0; ///< while it is dragged, -1 to 1; after that what it was when it was let go
    double room_ = 0;
    bool pokable_ = true;
    bool showsGesture_ = false; ///< in the last frame
    QTimer frames_;
};

/// The rim and keyline of that appearance.
SoftWumble::Tweaks stickerColours(Appearance appearance);

} // namespace quietlark
