#pragma once

#include <QWidget>

class QVBoxLayout;

namespace quietlark {

/// A place set into the paper for rows that unfolded.
class Well : public QWidget {
public:
    explicit Well(QWidget* parent = nullptr);

    QVBoxLayout* column() const { return column_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* column_;
};

} // namespace quietlark
