#include "gui/file_comparison_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTime>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/files.h"
#include "gui/colour_map.h"
#include "gui/qt_text.h"
#include "workbench/file_comparison.h"

namespace korvex::gui {
namespace {

QLineEdit* field(const QString& name, bool readOnly = true) {
    auto* made = new QLineEdit;
    made->setObjectName(name);
    made->setReadOnly(readOnly);
    return made;
}

QLabel* label(const QString& text, const char* name) {
    auto* made = new QLabel(text);
    made->setObjectName(QString::fromLatin1(name));
    return made;
}

}  // namespace

FileComparisonWindow::FileComparisonWindow(Services services, std::int32_t background,
                                           QWidget* parent)
    : QWidget(parent), services_(std::move(services)) {
    setObjectName(QStringLiteral("frmDateivergleich"));
    setWindowTitle(QStringLiteral("Dateivergleich"));
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, toQColor(background, QApplication::palette()));
    setPalette(palette);

    auto* files = new QGridLayout;
    const char* sizeLabels[] = {"Label1", "Label4"};
    const char* dateLabels[] = {"Label2", "Label3"};
    for (int which = 0; which < 2; ++which) {
        const QString text = which == 0 ? QStringLiteral("Text1") : QStringLiteral("Text2");
        names_[which] = field(text + QStringLiteral("_0"));
        sizes_[which] = field(text + QStringLiteral("_1"));
        dates_[which] = field(text + QStringLiteral("_2"));
        // Room for a whole date and time, whatever the font.
        dates_[which]->setMinimumWidth(
            dates_[which]->fontMetrics().horizontalAdvance(QStringLiteral("88.88.8888 88:88:88")) +
            16);
        sizes_[which]->setMaximumWidth(
            sizes_[which]->fontMetrics().horizontalAdvance(QStringLiteral("88888888")) + 16);
        auto* choose = new QPushButton(which == 0 ? QStringLiteral("1. Datei wählen")
                                                  : QStringLiteral("2. Datei wählen"));
        choose->setObjectName(which == 0 ? QStringLiteral("Command1") : QStringLiteral("Command2"));
        connect(choose, &QPushButton::clicked, this, [this, which] {
            const std::string path = services_.chooseFile ? services_.chooseFile() : std::string();
            if (!path.empty()) setFile(which, path);
        });
        const int row = which * 2;
        files->addWidget(choose, row + 1, 0);
        files->addWidget(names_[which], row + 1, 1);
        files->addWidget(label(QStringLiteral("Bytes"), sizeLabels[which]), row, 2);
        files->addWidget(sizes_[which], row + 1, 2);
        files->addWidget(label(QStringLiteral("Datum"), dateLabels[which]), row, 3);
        files->addWidget(dates_[which], row + 1, 3);
    }
    files->setColumnStretch(1, 1);

    auto* frame = new QGroupBox(QStringLiteral("Behandlung von Hex-Dateien"));
    frame->setObjectName(QStringLiteral("Frame1"));
    expandHex_ = new QCheckBox(QStringLiteral("Bei Hexdateien Binärvergleich durchführen"));
    expandHex_->setObjectName(QStringLiteral("ChkHexumwandlung"));
    expandHex_->setToolTip(
        QStringLiteral("wandelt Hexdateien vor dem Vergleich in Binärdateien um"));
    expandHex_->setChecked(true);
    fill_ = field(QStringLiteral("TxtDefault"), false);
    fill_->setText(QStringLiteral("FF"));
    fill_->setToolTip(QStringLiteral("Hexzahl von 00 bis FF eingeben"));
    fill_->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9A-Fa-f]{0,2}")), fill_));
    fill_->setMaximumWidth(50);
    auto* frameLayout = new QGridLayout(frame);
    frameLayout->addWidget(expandHex_, 0, 0, 1, 2);
    frameLayout->addWidget(label(QStringLiteral("Nicht belegte Adressen füllen mit"), "Label5"), 1,
                           0);
    frameLayout->addWidget(fill_, 1, 1);

    stopAfter_ = field(QStringLiteral("Text4"), false);
    stopAfter_->setText(QStringLiteral("100"));
    stopAfter_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), stopAfter_));
    stopAfter_->setMaximumWidth(70);
    auto* stop = new QHBoxLayout;
    stop->addWidget(label(QStringLiteral("Abbruch nach"), "Label6"));
    stop->addWidget(stopAfter_);
    stop->addWidget(new QLabel(QStringLiteral("Differenzen.")));
    stop->addStretch();

    list_ = new QPlainTextEdit;
    list_->setObjectName(QStringLiteral("Text3"));
    list_->setReadOnly(true);
    QFont mono(QStringLiteral("Courier New"));
    mono.setStyleHint(QFont::Monospace);
    list_->setFont(mono);

    auto* start = new QPushButton(QStringLiteral("&Vergleiche"));
    start->setObjectName(QStringLiteral("Vergleich"));
    auto* close = new QPushButton(QStringLiteral("&Schließen"));
    close->setObjectName(QStringLiteral("Command4"));
    connect(start, &QPushButton::clicked, this, &FileComparisonWindow::compare);
    connect(close, &QPushButton::clicked, this, [this] { emit closeRequested(); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(start);
    buttons->addWidget(close);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(files);
    layout->addWidget(frame);
    layout->addLayout(stop);
    layout->addWidget(new QLabel(QStringLiteral("Differenzen")));
    layout->addWidget(list_, 1);
    layout->addLayout(buttons);
}

void FileComparisonWindow::setFile(int which, const std::string& path) {
    if (services_.noteFolder) services_.noteFolder(path);
    names_[which]->setText(fromCp1252(path));
    names_[which]->setCursorPosition(static_cast<int>(names_[which]->text().size()));
    const QFileInfo info(QString::fromStdString(toUtf8(path)));
    sizes_[which]->setText(QString::number(info.exists() ? info.size() : 0));
    dates_[which]->setText(info.exists()
                               ? info.lastModified().toString(QStringLiteral("dd.MM.yyyy hh:mm:ss"))
                               : QString());
    list_->clear();
}

void FileComparisonWindow::compare() {
    for (int which = 0; which < 2; ++which) {
        if (names_[which]->text().isEmpty()) return;
        if (sizes_[which]->text().toLongLong() == 0) return;
    }
    list_->clear();
    list_->setFocus();
    const bool expand = expandHex_->isChecked();
    const auto fill = static_cast<unsigned char>(fill_->text().toUInt(nullptr, 16));
    std::string images[2];
    try {
        for (int which = 0; which < 2; ++which)
            images[which] = LoadForCompare(readWholeFile(toUtf8(toCp1252(names_[which]->text()))),
                                           expand, fill);
    } catch (const RuntimeFailure& failure) {
        if (services_.failed) services_.failed(failure);
        return;
    }
    list_->setEnabled(false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    list_->setPlainText(
        fromCp1252(CompareBytes(images[0], images[1], stopAfter_->text().toLong())));
    list_->setEnabled(true);
    QApplication::restoreOverrideCursor();
}

}  // namespace korvex::gui
