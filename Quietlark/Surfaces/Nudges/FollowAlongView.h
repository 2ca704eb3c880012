#pragma once

#include "Quietlark/Surfaces/Nudges/FollowAlongLine.h"
#include "Quietlark/Theme/Appearance.h"

#include <QRectF>
#include <QString>

class QPainter;

namespace quietlark {

/// The words of a nudge: what it asks for and, under it, how far the exercise is and what comes now.
struct FollowAlongView {
    QString title;
    const FollowAlongLine* follow = nullptr; ///< absent: `subtitle` stands under the title
    QString subtitle;
    double elapsed = 0; ///< seconds since the note appeared
    bool reduceMotion = false;

    /// In the middle of the place's height. Words that would need more of it than there is become smaller.
    void draw(QPainter& painter, const QRectF& place, const Appearance& appearance) const;

private:
    void drawLine(QPainter& painter, const QRectF& row, const Appearance& appearance) const;
    void drawCue(QPainter& painter, const QRectF& row, const FollowAlongLine::Cue& cue, double presence,
                 const Appearance& appearance) const;
    void drawRounds(QPainter& painter, const QRectF& row, const Appearance& appearance) const;
    double roundsWidth() const;
    double widestCue(const Appearance& appearance) const;
    double popped(double since) const;
};

} // namespace quietlark
