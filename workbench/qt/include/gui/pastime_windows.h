#pragma once
// The small windows of the help menu that stand alone: the calendar, the
// sliding puzzle and the about window.

#include <QDialog>
#include <QWidget>

#include "workbench/sliding_puzzle.h"

class QPushButton;
class QLabel;

namespace korvex::gui {

// frmKalender: a month calendar in German.
QWidget* makeCalendarWindow(QWidget* parent);

// frmSpiel: the fifteen tiles.
class PuzzleWindow : public QWidget {
    Q_OBJECT

  public:
    PuzzleWindow(std::uint32_t seed, QWidget* parent);
    QPushButton* cell(int index) const { return cells_[index]; }
    const SlidingPuzzle& puzzle() const { return puzzle_; }

  private:
    void newGame(std::uint32_t seed);
    void showTiles();

    SlidingPuzzle puzzle_;
    QPushButton* cells_[SlidingPuzzle::kCells] = {};
    QLabel* status_ = nullptr;
};

// frmInfo: name, version, date and licence.
class AboutDialog : public QDialog {
    Q_OBJECT

  public:
    explicit AboutDialog(QWidget* parent);
};

}  // namespace korvex::gui
