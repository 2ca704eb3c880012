#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace quietlark {

/// A few choices side by side, one of them chosen. Tab goes to the chosen one, the arrow keys choose.
class Segments : public QWidget {
public:
    explicit Segments(QWidget* parent = nullptr);

    /// The first is the current one.
    void setChoices(const QStringList& choices);

    /// Without calling `chosen`. Nothing happens outside of the choices.
    void setCurrent(int place);
    int current() const;

    /// The person chose the one at that place.
    std::function<void(int)> chosen;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void stopAtChosen();

    QList<class SegmentChoice*> choices_;
};

} // namespace quietlark
