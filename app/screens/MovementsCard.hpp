#pragma once
// A rounded panel in the theme's card colour, optionally with a coloured stripe on its leading
// edge (the banners). The month screen's tiles, banners and start card are built on it.

#include <QColor>
#include <QFrame>

#include <functional>

namespace vantello::app {

class MovementsCard : public QFrame {
    Q_OBJECT
public:
    explicit MovementsCard(QWidget* parent = nullptr);

    // The stripe's colour, read from the current theme at every paint; none without a stripe.
    void setStripe(std::function<QColor()> colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<QColor()> stripe_;
};

}  // namespace vantello::app
