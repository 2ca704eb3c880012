#pragma once

#include <QWidget>

class QVBoxLayout;

namespace quietlark {

/// A card on the paper with things in it.
class PaperCard : public QWidget {
public:
    explicit PaperCard(QWidget* parent = nullptr);

    QVBoxLayout* column() const { return column_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* column_;
};

} // namespace quietlark
