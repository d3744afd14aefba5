#pragma once
// One summary tile of the month screen: a short label, one large figure in the colour of its
// direction, a line of context, and for a tile that explains itself a small info button.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include "app/screens/MovementsCard.hpp"

#include "app/model/MonthTiles.hpp"

class QLabel;
class QToolButton;

namespace vantello::app {

class SummaryTile : public MovementsCard {
    Q_OBJECT
public:
    explicit SummaryTile(QWidget* parent = nullptr);

    void setTile(const MonthTile& tile);
    [[nodiscard]] const MonthTile& tile() const { return tile_; }

public Q_SLOTS:
    // Shows the explanation beside the info button.
    void showInfo();

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyColours();

    MonthTile tile_;
    QLabel* label_;
    QLabel* figure_;
    QLabel* context_;
    QToolButton* info_;
};

}  // namespace vantello::app
