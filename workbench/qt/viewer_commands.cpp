// The viewers of the workbench: listing, hex and binary files and the
// controller's driver, each open in a new window.

#include <QHeaderView>
#include <QIcon>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTextEdit>
#include <QVBoxLayout>

#include "assembler/cpu_driver.h"
#include "base/cp1252.h"
#include "base/failure.h"
#include "base/files.h"
#include "base/program_folder.h"
#include "base/text.h"
#include "gui/byte_grid_window.h"
#include "gui/command_menus.h"
#include "gui/file_comparison_window.h"
#include "gui/listing_window.h"
#include "gui/main_window.h"
#include "gui/qt_text.h"
#include "gui/twips.h"
#include "workbench/captions.h"
#include "workbench/colours.h"
#include "workbench/last_dirs.h"
#include "workbench/viewer_requests.h"

namespace korvex::gui {

QMdiSubWindow* MainWindow::addViewer(QWidget* viewer, const std::string& caption) {
    QMdiSubWindow* frame = area_->addSubWindow(viewer);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setWindowIcon(QIcon(QStringLiteral(":/icons/listing.xpm")));
    frame->setWindowTitle(fromCp1252(caption));
    viewer->setWindowTitle(fromCp1252(caption));
    frame->installEventFilter(this);
    // As a source window: three quarters of the inner area, one step further
    // down and right than the last.
    const QSize inner = area_->viewport()->size();
    const int step = 24 * static_cast<int>((area_->subWindowList().size() - 1) % 8);
    frame->resize(std::max(inner.width() * 3 / 4, 320), std::max(inner.height() * 3 / 4, 200));
    frame->move(step, step);
    frame->show();
    area_->setActiveSubWindow(frame);
    viewer->setFocus();
    refreshCommands();
    return frame;
}

void MainWindow::say(const std::string& text) {
    host_.messageBox(std::string(kMainCaption), text, MessageButtons::Ok, MessageIcon::None);
}

void MainWindow::openListing() {
    const std::string chosen = dialogs_.openFileName(listingFileRequest(settings_));
    if (chosen.empty()) return;
    noteChosenFolder(settings_, chosen);
    std::string text;
    try {
        text = readWholeFile(toUtf8(chosen));
    } catch (const RuntimeFailure& failure) {
        host_.messageBox("Fehler", failureBoxText(failure, "OpenListing"), MessageButtons::Ok,
                         MessageIcon::Critical);
        return;
    }
    auto* listing = new ListingWindow(flags_, settings_);
    listing->setHelp([this](const std::string& word) { showHelpForWord(word); });
    connect(listing, &ListingWindow::editMenuRequested, this, [this](const QPoint& at) {
        if (QMenu* edit = menus_->menu(QStringLiteral("mnEdit"))) edit->popup(at);
    });
    connect(listing->textEdit(), &QTextEdit::selectionChanged, this,
            [this] { updateEditCommands(); });
    addViewer(listing, viewerCaption("Listing: ", chosen));
    listing->load(text);
}

void MainWindow::openByteFile(bool hex) {
    const std::string chosen =
        dialogs_.openFileName(hex ? hexFileRequest(settings_) : binaryFileRequest(settings_));
    if (chosen.empty()) return;
    std::string bytes;
    try {
        bytes = readWholeFile(toUtf8(chosen));
    } catch (const RuntimeFailure& failure) {
        say(text8("Datei kann nicht geöffnet werden: ") + chosen + " " +
            std::to_string(failure.number()));
        return;
    }
    ByteGrid grid;
    if (hex) {
        switch (readHexGrid(bytes, grid)) {
            case HexReading::Empty: say(chosen + text8(" : Leere oder ungültige Hexdatei")); return;
            case HexReading::InvalidFormat: say(chosen + text8(" : Ungültiges Hexformat")); return;
            case HexReading::Shown: break;
        }
    } else {
        if (bytes.empty()) {
            say(chosen + text8(" : Leere Binärdatei"));
            return;
        }
        try {
            grid = binaryGrid(bytes);
        } catch (const RuntimeFailure& failure) {
            host_.messageBox("Fehler", failureBoxText(failure, "OpenBinFile"), MessageButtons::Ok,
                             MessageIcon::Critical);
            return;
        }
    }
    noteChosenFolder(settings_, chosen);
    auto* window =
        new ByteGridWindow(hex ? ByteGridWindow::Kind::Hex : ByteGridWindow::Kind::Binary,
                           std::move(grid), settings_.Colours[hex ? kHexBorder : kBinaryBorder],
                           settings_.Colours[hex ? kHexContent : kBinaryContent]);
    QMdiSubWindow* frame =
        addViewer(window, viewerCaption(hex ? "Hexdatei: " : text8("Binärdatei: "), chosen));
    // Hex and binary windows share one place.
    frame->setProperty("sharedPlace", true);
    // The stored place, but wide enough for all seventeen columns.
    const QRect place = sharedPlace().inPixels();
    QTableView* view = window->grid();
    int needed = view->verticalHeader()->sizeHint().width() + view->frameWidth() * 2 +
                 view->verticalScrollBar()->sizeHint().width() + 16;
    for (int column = 0; column < view->model()->columnCount(); ++column)
        needed += view->columnWidth(column);
    const int width = std::max(place.width(), needed);
    const int height = std::max(place.height(), 120);
    // Moved in where the workbench is too small for the stored place.
    const QSize inner = area_->viewport()->size();
    frame->setGeometry(std::clamp(place.x(), 0, std::max(inner.width() - width, 0)),
                       std::clamp(place.y(), 0, std::max(inner.height() - height, 0)), width,
                       height);
}

StoredPlace MainWindow::sharedPlace() {
    return {settings_.HexWindowLeft, settings_.HexWindowTop, settings_.HexWindowWidth,
            settings_.HexWindowHeight};
}

void MainWindow::storeSharedPlace(QMdiSubWindow* frame) {
    if (frame->isMinimized()) return;
    sharedPlace().keep(frame->geometry());
}

void MainWindow::openFileComparison() {
    for (QMdiSubWindow* frame : area_->subWindowList()) {
        if (qobject_cast<FileComparisonWindow*>(frame->widget()) != nullptr) {
            area_->setActiveSubWindow(frame);
            return;
        }
    }
    FileComparisonWindow::Services services;
    services.chooseFile = [this] {
        FileDialogRequest request;
        request.title = text8("Datei öffnen");
        request.filter = "Alle Dateien (*.*)|*.*";
        return dialogs_.openFileName(request);
    };
    services.noteFolder = [this](const std::string& path) { noteChosenFolder(settings_, path); };
    services.failed = [this](const RuntimeFailure& failure) {
        host_.messageBox("Fehler", failureBoxText(failure, "Vergleich_Click"), MessageButtons::Ok,
                         MessageIcon::Critical);
    };
    auto* window =
        new FileComparisonWindow(std::move(services), settings_.Colours[kComparisonBackground]);
    QMdiSubWindow* frame = addViewer(window, "Dateivergleich");
    connect(window, &FileComparisonWindow::closeRequested, frame, &QMdiSubWindow::close);
}

void MainWindow::showCpuFile() {
    const std::string name = removeAll(settings_.ControllerName, '\'');
    const std::string path = cpuDriverPath(name, programFolder_);
    std::string text;
    try {
        text = readWholeFile(path);
    } catch (const RuntimeFailure& failure) {
        say("Kann Datei " + fromUtf8(path) + " nicht lesen: " + failure.description());
        return;
    }
    auto* viewer = new QWidget;
    viewer->setObjectName(QStringLiteral("frmCPUTreiber"));
    auto* box = new QPlainTextEdit(viewer);
    box->setObjectName(QStringLiteral("CPUTextbox"));
    box->setReadOnly(true);
    box->setPlainText(fromCp1252(text));
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* layout = new QVBoxLayout(viewer);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    addViewer(viewer, "CPU-Datei: " + fromUtf8(path));
}

}  // namespace korvex::gui
