#pragma once

#include <QScrollArea>

namespace quietlark {

/// Paper that may be longer than its place: a slim bar stands at its side while it is, and nothing otherwise.
class PaperScroll : public QScrollArea {
public:
    explicit PaperScroll(QWidget* parent = nullptr);

    /// To be called when the paper wants another size; a new size of the place is seen without it.
    void fitBar();

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace quietlark
