#pragma once
// Labelfinder: the label lines of the active source in a grid, sorted by
// label or by their order, and a jump to the one chosen.

#include <QDialog>
#include <string>
#include <vector>

class QAction;
class QTableWidget;

namespace korvex::gui {

class LabelFinderDialog : public QDialog {
    Q_OBJECT

  public:
    // `sortState` outlives the dialog: 1 sorts by label, 0 by order.
    LabelFinderDialog(std::vector<std::string> labels, std::int16_t& sortState,
                      std::int32_t fixedColour, std::int32_t cellColour, QWidget* parent);

    // The list entry chosen with OK, a double click or Anzeigen; empty when
    // the dialog closed without one.
    const std::string& chosen() const { return chosen_; }
    QTableWidget* grid() const { return grid_; }
    // MnSort: flips the state and sorts by it.
    void sort();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void choose();
    void fitColumns();

    std::vector<std::string> labels_;
    std::int16_t& sortState_;
    QTableWidget* grid_ = nullptr;
    QAction* sortAction_ = nullptr;
    std::string chosen_;
};

}  // namespace korvex::gui
