#include "gui/reference_window.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <set>

#include "disassembler/instruction_forms.h"
#include "disassembler/instruction_summary.h"
#include "gui/qt_text.h"

namespace korvex::gui {
namespace {

enum Group { kArithmetic, kLogic, kTransfer, kBits, kJumps, kGroups };

const char* const kGroupNames[kGroups] = {"&Arithmetik", "&Logik", "&Datentransfer", "&Bitbefehle",
                                          "&Sprünge"};

Group groupOf(const std::string& general) {
    const std::string mnemonic = general.substr(0, general.find(' '));
    if (general.find("bit") != std::string::npos || general == "CLR C" || general == "SETB C" ||
        general == "CPL C")
        return kBits;
    static const std::set<std::string> arithmetic = {"ADD", "ADDC", "SUBB", "INC",
                                                     "DEC", "MUL",  "DIV",  "DA"};
    static const std::set<std::string> logic = {"ANL", "ORL", "XRL", "CLR", "CPL",
                                                "RL",  "RLC", "RR",  "RRC", "SWAP"};
    static const std::set<std::string> transfer = {"MOV", "MOVC", "MOVX", "PUSH",
                                                   "POP", "XCH",  "XCHD"};
    if (arithmetic.count(mnemonic) != 0) return kArithmetic;
    if (logic.count(mnemonic) != 0) return kLogic;
    if (transfer.count(mnemonic) != 0) return kTransfer;
    return kJumps;
}

}  // namespace

ReferenceWindow::ReferenceWindow(int tab, std::function<void(const std::string&)> help,
                                 QWidget* parent)
    : QWidget(parent, Qt::Window), help_(std::move(help)) {
    setObjectName(QStringLiteral("frmBefehle"));
    setWindowTitle(QStringLiteral("Befehlssatz des 8051"));
    setAttribute(Qt::WA_DeleteOnClose);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName(QStringLiteral("TabStrip1"));
    QTableWidget* tables[kGroups];
    for (int group = 0; group < kGroups; ++group) {
        tables[group] = new QTableWidget(0, 4);
        tables[group]->setHorizontalHeaderLabels({QStringLiteral("Befehl"),
                                                  QStringLiteral("Opcode"), QStringLiteral("Bytes"),
                                                  QStringLiteral("Zyklen")});
        tables[group]->verticalHeader()->hide();
        tables[group]->setEditTriggers(QAbstractItemView::NoEditTriggers);
        tables[group]->setSelectionBehavior(QAbstractItemView::SelectRows);
        tables[group]->horizontalHeader()->setStretchLastSection(true);
        tabs_->addTab(tables[group], QString::fromUtf8(kGroupNames[group]));
        connect(tables[group], &QTableWidget::cellDoubleClicked, this,
                [this, table = tables[group]](int row, int) {
                    const QString form = table->item(row, 0)->text();
                    if (help_) help_(toCp1252(form.section(QLatin1Char(' '), 0, 0)));
                });
    }
    // One row per form; registers and indirect forms show their first opcode
    // and the range.
    const auto& forms = instructionForms();
    for (int op = 0; op < 256; ++op) {
        const InstructionForm& form = forms[static_cast<std::size_t>(op)];
        if (form.length == 0) continue;
        const std::string general = GeneralForm(form.pattern);
        QTableWidget* table = tables[groupOf(general)];
        const QString opcode = QStringLiteral("%1h").arg(op, 2, 16, QLatin1Char('0')).toUpper();
        // Forms that repeat over a register range take one row.
        const int previous = table->rowCount() - 1;
        if (previous >= 0 && table->item(previous, 0)->text() == fromCp1252(general)) {
            const QString first = table->item(previous, 1)->text().section(QLatin1Char(' '), 0, 0);
            table->item(previous, 1)->setText(first + QStringLiteral(" – ") + opcode);
            continue;
        }
        const int row = table->rowCount();
        table->insertRow(row);
        table->setItem(row, 0, new QTableWidgetItem(fromCp1252(general)));
        table->setItem(row, 1, new QTableWidgetItem(opcode));
        table->setItem(row, 2, new QTableWidgetItem(QString::number(form.length)));
        table->setItem(row, 3, new QTableWidgetItem(QString::number(MachineCycles(op))));
    }
    for (QTableWidget* table : tables) table->resizeColumnsToContents();
    tabs_->setCurrentIndex(std::clamp(tab, 0, kGroups - 1));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(tabs_);
    resize(520, 480);
}

void ReferenceWindow::closeEvent(QCloseEvent* event) {
    emit closing(pos(), tabs_->currentIndex());
    QWidget::closeEvent(event);
}

}  // namespace korvex::gui
