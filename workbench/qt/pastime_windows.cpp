#include "gui/pastime_windows.h"

#include <QCalendarWidget>
#include <QDateTime>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/version.h"
#include "gui/app_icon.h"

namespace korvex::gui {

QWidget* makeCalendarWindow(QWidget* parent) {
    auto* window = new QWidget(parent, Qt::Window);
    window->setObjectName(QStringLiteral("frmKalender"));
    window->setWindowTitle(QStringLiteral("Kalender"));
    window->setAttribute(Qt::WA_DeleteOnClose);
    auto* calendar = new QCalendarWidget(window);
    calendar->setObjectName(QStringLiteral("Calendar1"));
    calendar->setLocale(QLocale(QLocale::German, QLocale::Germany));
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setGridVisible(true);
    calendar->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
    auto* layout = new QVBoxLayout(window);
    layout->addWidget(calendar);
    return window;
}

PuzzleWindow::PuzzleWindow(std::uint32_t seed, QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("frmSpiel"));
    setWindowTitle(QStringLiteral("Zeitvertreib"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    for (int index = 0; index < SlidingPuzzle::kCells; ++index) {
        cells_[index] = new QPushButton;
        cells_[index]->setObjectName(QStringLiteral("Feld_%1").arg(index));
        cells_[index]->setFixedSize(56, 56);
        QFont font = cells_[index]->font();
        font.setPointSize(16);
        font.setBold(true);
        cells_[index]->setFont(font);
        grid->addWidget(cells_[index], index / SlidingPuzzle::kSide, index % SlidingPuzzle::kSide);
        connect(cells_[index], &QPushButton::clicked, this, [this, index] {
            if (puzzle_.solved() || !puzzle_.move(index)) return;
            showTiles();
        });
    }
    status_ = new QLabel;
    auto* again = new QPushButton(QStringLiteral("&Neues Spiel"));
    again->setObjectName(QStringLiteral("Command1"));
    connect(again, &QPushButton::clicked, this,
            [this] { newGame(static_cast<std::uint32_t>(QDateTime::currentMSecsSinceEpoch())); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(QStringLiteral("Schieben Sie die Steine in die Reihenfolge 1 "
                                  "bis 15: ein Klick schiebt einen Stein neben der "
                                  "Lücke hinein.")));
    layout->itemAt(0)->widget()->setProperty("wordWrap", true);
    layout->addLayout(grid);
    layout->addWidget(status_);
    layout->addWidget(again);
    newGame(seed);
}

void PuzzleWindow::newGame(std::uint32_t seed) {
    puzzle_ = SlidingPuzzle();
    puzzle_.shuffle(seed);
    showTiles();
}

void PuzzleWindow::showTiles() {
    for (int index = 0; index < SlidingPuzzle::kCells; ++index) {
        const int tile = puzzle_.tile(index);
        cells_[index]->setText(tile == 0 ? QString() : QString::number(tile));
        cells_[index]->setEnabled(tile != 0);
    }
    status_->setText(puzzle_.solved() ? QStringLiteral("Gelöst in %1 Zügen.").arg(puzzle_.moves())
                                      : QStringLiteral("Züge: %1").arg(puzzle_.moves()));
}

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmInfo"));
    setWindowTitle(QStringLiteral("Info"));
    auto* picture = new QLabel;
    picture->setPixmap(applicationIcon().pixmap(64, 64));
    auto* text = new QLabel(
        QStringLiteral("<h2>Korvex</h2><p>Entwicklungsumgebung für MCS-51-Mikrocontroller</p>"
                       "<p>Version %1 vom %2</p>"
                       "<p>Assembler, Disassembler, Controller-Assistenten und Werkbank.<br>"
                       "Alle Rechte an Programm, Treibern und Hilfe liegen bei den Entwicklern "
                       "von Korvex.</p>")
            .arg(QString::fromLatin1(kVersionNumber), QString::fromLatin1(kReleaseDate)));
    text->setObjectName(QStringLiteral("Label1"));
    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addWidget(text, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(ok, 0, Qt::AlignRight);
}

}  // namespace korvex::gui
