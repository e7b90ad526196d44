#pragma once
// frmHexDump and frmBinDump: a file's bytes in a grid of sixteen columns
// under their address, with the bytes as characters in the last column. The
// grid is a model and a view, so a file of some hundred thousand bytes opens
// at once.

#include <QAbstractTableModel>
#include <QWidget>

#include "workbench/byte_grid.h"

class QTableView;

namespace korvex::gui {

class ByteGridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    explicit ByteGridModel(ByteGrid grid, QObject* parent = nullptr)
        : QAbstractTableModel(parent), grid_(std::move(grid)) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    ByteGrid grid_;
};

class ByteGridWindow : public QWidget {
    Q_OBJECT

  public:
    enum class Kind { Hex, Binary };
    // Colours are the settings' values for the fixed cells and the others.
    ByteGridWindow(Kind kind, ByteGrid grid, std::int32_t fixedColour, std::int32_t cellColour,
                   QWidget* parent = nullptr);

    QTableView* grid() const { return view_; }
    Kind kind() const { return kind_; }
    void setColours(std::int32_t fixedColour, std::int32_t cellColour);

  private:
    Kind kind_;
    QTableView* view_ = nullptr;
};

}  // namespace korvex::gui
