#include "gui/label_finder_dialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QPushButton>
#include <QResizeEvent>
#include <QTableWidget>
#include <QVBoxLayout>

#include "gui/colour_map.h"
#include "gui/qt_text.h"
#include "workbench/label_finder.h"

namespace korvex::gui {
namespace {

constexpr int kNumberWidth = 350 / 15;

// Numbers sort as numbers, so that sorting by them gives the text's order.
class NumberItem : public QTableWidgetItem {
  public:
    explicit NumberItem(int number) : QTableWidgetItem(QString::number(number)) {
        setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    bool operator<(const QTableWidgetItem& other) const override {
        return text().toInt() < other.text().toInt();
    }
};

}  // namespace

LabelFinderDialog::LabelFinderDialog(std::vector<std::string> labels, std::int16_t& sortState,
                                     std::int32_t fixedColour, std::int32_t cellColour,
                                     QWidget* parent)
    : QDialog(parent), labels_(std::move(labels)), sortState_(sortState) {
    setObjectName(QStringLiteral("Labelfinder"));
    setWindowTitle(QStringLiteral("Gehe zu Label"));
    auto* menu = new QMenuBar(this);
    sortAction_ = menu->addAction(QStringLiteral("S&ortieren"));
    sortAction_->setObjectName(QStringLiteral("MnSort"));
    QAction* show = menu->addAction(QStringLiteral("&Anzeigen"));
    show->setObjectName(QStringLiteral("MnAnzeigen"));
    QAction* close = menu->addAction(QStringLiteral("&Schließen"));
    close->setObjectName(QStringLiteral("MnClose"));
    connect(sortAction_, &QAction::triggered, this, &LabelFinderDialog::sort);
    connect(show, &QAction::triggered, this, &LabelFinderDialog::choose);
    connect(close, &QAction::triggered, this, &QDialog::reject);

    grid_ = new QTableWidget(static_cast<int>(labels_.size()), 2, this);
    grid_->setObjectName(QStringLiteral("LabelFinderFg"));
    grid_->setHorizontalHeaderLabels({QStringLiteral("Nr."), QStringLiteral("Label")});
    grid_->horizontalHeaderItem(0)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid_->horizontalHeaderItem(1)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    grid_->verticalHeader()->hide();
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid_->setSelectionMode(QAbstractItemView::SingleSelection);
    grid_->setMouseTracking(true);
    for (int row = 0; row < grid_->rowCount(); ++row) {
        grid_->setItem(row, 0, new NumberItem(row + 1));
        const QString text = fromCp1252(LabelRowText(labels_[static_cast<std::size_t>(row)]));
        auto* label = new QTableWidgetItem(text);
        grid_->setItem(row, 1, label);
    }
    QPalette palette = grid_->palette();
    palette.setColor(QPalette::Base, toQColor(cellColour, QApplication::palette()));
    grid_->setPalette(palette);
    grid_->horizontalHeader()->setStyleSheet(
        QStringLiteral("QHeaderView::section { background-color: %1; }")
            .arg(toQColor(fixedColour, QApplication::palette()).name()));
    connect(grid_, &QTableWidget::cellDoubleClicked, this, &LabelFinderDialog::choose);

    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("LFCmd1"));
    ok->setDefault(true);
    auto* escape = new QPushButton(QStringLiteral("ESC"));
    escape->setObjectName(QStringLiteral("LFCmd2"));
    connect(ok, &QPushButton::clicked, this, &LabelFinderDialog::choose);
    connect(escape, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(escape);
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(menu);
    layout->addWidget(grid_);
    layout->addLayout(buttons);
    resize(420, 380);

    // The state as it was when the dialog last closed: flipped here, and
    // back by the sort.
    sortState_ = static_cast<std::int16_t>(1 - sortState_);
    sort();
    if (grid_->rowCount() > 0) grid_->selectRow(0);
}

void LabelFinderDialog::sort() {
    sortState_ = static_cast<std::int16_t>(1 - sortState_);
    grid_->sortItems(sortState_ == 1 ? 1 : 0, Qt::AscendingOrder);
    sortAction_->setText(sortState_ == 1 ? QStringLiteral("Res&ortieren")
                                         : QStringLiteral("S&ortieren"));
}

void LabelFinderDialog::choose() {
    const int row = grid_->currentRow();
    if (row < 0) return;
    const int number = grid_->item(row, 0)->text().toInt();
    if (number >= 1 && number <= static_cast<int>(labels_.size()))
        chosen_ = labels_[static_cast<std::size_t>(number - 1)];
    accept();
}

void LabelFinderDialog::fitColumns() {
    // The label takes the rest; the viewport leaves the scroll bar its room.
    grid_->setColumnWidth(
        0,
        std::max(kNumberWidth, grid_->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 8));
    grid_->setColumnWidth(1, std::max(grid_->viewport()->width() - grid_->columnWidth(0), 60));
    for (int row = 0; row < grid_->rowCount(); ++row) {
        QTableWidgetItem* label = grid_->item(row, 1);
        const bool wider =
            grid_->fontMetrics().horizontalAdvance(label->text()) > grid_->columnWidth(1) - 6;
        label->setToolTip(wider ? label->text() : QString());
    }
}

void LabelFinderDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    fitColumns();
}

}  // namespace korvex::gui
