#include "gui/byte_grid_window.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

#include "gui/colour_map.h"
#include "gui/qt_text.h"

namespace korvex::gui {
namespace {

constexpr int kAddressWidth = 620 / 15;  // twips to pixels
constexpr int kByteWidth = 380 / 15;
constexpr int kCharactersWidth = 2200 / 15;
constexpr int kColumns = 17;  // sixteen bytes and the characters; the address heads the row

QFont gridFont() {
    QFont font(QStringLiteral("Courier New"));
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

}  // namespace

int ByteGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(grid_.rows.size());
}

int ByteGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant ByteGridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const ByteRow& row = grid_.rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) {
        if (index.column() < 16)
            return fromCp1252(row.cells[static_cast<std::size_t>(index.column())]);
        return fromCp1252(row.characters);
    }
    if (role == Qt::TextAlignmentRole)
        return index.column() < 16 ? QVariant(Qt::AlignCenter) : QVariant(Qt::AlignVCenter);
    return {};
}

QVariant ByteGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignCenter);
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Horizontal)
        return section < 16 ? QString::number(section, 16).toUpper() : QStringLiteral("Ansi");
    if (section < 0 || section >= rowCount()) return {};
    return fromCp1252(grid_.rows[static_cast<std::size_t>(section)].address);
}

ByteGridWindow::ByteGridWindow(Kind kind, ByteGrid grid, std::int32_t fixedColour,
                               std::int32_t cellColour, QWidget* parent)
    : QWidget(parent), kind_(kind) {
    setObjectName(kind == Kind::Hex ? QStringLiteral("frmHexDump") : QStringLiteral("frmBinDump"));
    view_ = new QTableView(this);
    view_->setObjectName(kind == Kind::Hex ? QStringLiteral("MSFlexGrid1")
                                           : QStringLiteral("MSBinGrid"));
    view_->setModel(new ByteGridModel(std::move(grid), view_));
    view_->setFont(gridFont());
    view_->horizontalHeader()->setFont(gridFont());
    view_->verticalHeader()->setFont(gridFont());
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->verticalHeader()->setDefaultSectionSize(QFontMetrics(gridFont()).height() + 4);
    view_->verticalHeader()->setMinimumWidth(kAddressWidth);
    view_->verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    // Two digits must fit whatever the font: the classic widths are the least.
    const int digits = QFontMetrics(gridFont()).horizontalAdvance(QStringLiteral("FF")) + 10;
    for (int column = 0; column < 16; ++column)
        view_->setColumnWidth(column, std::max(kByteWidth, digits));
    view_->setColumnWidth(
        16, std::max(kCharactersWidth,
                     QFontMetrics(gridFont()).horizontalAdvance(QString(16, 'W')) + 10));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setColours(fixedColour, cellColour);
    if (view_->model()->rowCount() > 0) view_->setCurrentIndex(view_->model()->index(0, 0));
    setFocusProxy(view_);
}

void ByteGridWindow::setColours(std::int32_t fixedColour, std::int32_t cellColour) {
    const QColor fixed = toQColor(fixedColour, QApplication::palette());
    const QColor cells = toQColor(cellColour, QApplication::palette());
    QPalette palette = view_->palette();
    palette.setColor(QPalette::Base, cells);
    view_->setPalette(palette);
    const QString header =
        QStringLiteral("QHeaderView::section { background-color: %1; }").arg(fixed.name());
    view_->horizontalHeader()->setStyleSheet(header);
    view_->verticalHeader()->setStyleSheet(header);
}

}  // namespace korvex::gui
