#include "gui/main_window.h"
#include "gui/main_window_wizards.h"

#include "compile_host.h"
#include "gui/find_dialog.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QStatusBar>
#include <QTextEdit>

#include "base/cp1252.h"
#include "gui/colour_map.h"
#include "gui/command_menus.h"
#include "gui/command_toolbar.h"
#include "gui/qt_text.h"
#include "gui/window_arrangement.h"
#include "workbench/captions.h"
#include "workbench/settings_store.h"
#include "workbench/start_up.h"

// Resources of a static library are registered by hand.
static void registerIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace korvex::gui {

MainWindow::MainWindow(std::string programFolder, MainWindowServices services, QWidget* parent)
    : QMainWindow(parent),
      programFolder_(std::move(programFolder)),
      host_(services.host),
      dialogs_(services.dialogs),
      settings_(defaultSettings(programFolder_)),
      recent_(services.userStore),
      commands_(settings_, documents_, recent_, *this, dialogs_, host_) {
    registerIcons();
    setObjectName(QStringLiteral("frmMDI"));
    setWindowTitle(fromCp1252(std::string(kMainCaption)));
    setContextMenuPolicy(Qt::NoContextMenu);
    // Most of the screen, as the workbench is where the day's work happens.
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect available = screen->availableGeometry();
        resize(available.width() * 9 / 10, available.height() * 9 / 10);
    } else {
        resize(960, 680);
    }

    area_ = new QMdiArea(this);
    area_->setObjectName(QStringLiteral("MDIClient"));
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    connect(area_, &QMdiArea::subWindowActivated, this, &MainWindow::windowActivated);

    menus_ = new CommandMenus(menuBar());
    connect(menus_, &CommandMenus::commandChosen, this, &MainWindow::runCommand);
    connect(menus_, &CommandMenus::recentFileChosen, this,
            [this](int entry) { commands_.OpenRecentFile(entry); });
    connect(menus_, &CommandMenus::windowMenuAboutToShow, this, &MainWindow::fillWindowMenu);
    toolbar_ = new CommandToolbar(this);
    connect(toolbar_, &CommandToolbar::commandChosen, this, &MainWindow::runCommand);
    buildStatusBar();
    registerCommands();
    applyStartSettings();
    refreshCommands();
}

MainWindow::~MainWindow() {
    // The windows go first, while the table they report to still stands.
    closing_ = true;
    closeWizards();
    removeCompileFolder();
    if (compileFrame_ != nullptr) compileFrame_->removeEventFilter(this);
    compileFrame_ = nullptr;
    compileDialog_ = nullptr;
    for (QMdiSubWindow* frame : area_->subWindowList()) disconnect(frame, nullptr, this, nullptr);
    delete area_;
    area_ = nullptr;
}

void MainWindow::buildStatusBar() {
    lineLabel_ = new QLabel(QStringLiteral("Zeile 1"));
    lineLabel_->setObjectName(QStringLiteral("StbarZeile"));
    lineLabel_->setMinimumWidth(90);
    lineLabel_->installEventFilter(this);
    modeLabel_ = new QLabel;
    modeLabel_->setObjectName(QStringLiteral("StbarModus"));
    modeLabel_->setToolTip(QStringLiteral("Zeigt den Einfüge/Überschreibmodus an"));
    modeLabel_->setMinimumWidth(90);
    controllerLabel_ = new QLabel;
    controllerLabel_->setObjectName(QStringLiteral("Label1"));
    controllerLabel_->setToolTip(
        QStringLiteral(" Controllertyp für Disassembler und Hilfesystem "));
    controllerLabel_->setFrameShape(QFrame::Panel);
    controllerLabel_->setFrameShadow(QFrame::Sunken);
    controllerLabel_->setMinimumWidth(80);
    controllerLabel_->setAlignment(Qt::AlignCenter);
    controllerLabel_->setCursor(Qt::PointingHandCursor);
    controllerLabel_->installEventFilter(this);
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->addWidget(lineLabel_);
    statusBar()->addWidget(modeLabel_);
    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setRange(0, 100);
    progress_->setMaximumWidth(200);
    progress_->hide();
    statusBar()->addPermanentWidget(progress_);
    statusBar()->addPermanentWidget(controllerLabel_);
}

void MainWindow::applyStartSettings() {
    toolbar_->applyState(settings_.toolbar);
    showColours(settings_);
    controllerLabel_->setText(fromCp1252(settings_.ControllerName));
}

bool MainWindow::start(const std::string& commandLine) {
    std::optional<Settings> read = ReadSettings(programFolder_, host_);
    if (!read) return false;
    settings_ = std::move(*read);
    applyStartSettings();
    openStartWindows(commands_, documents_, *this, settings_, commandLine);
    refreshCommands();
    return true;
}

EditorDocument* MainWindow::documentOf(QMdiSubWindow* frame) const {
    const auto found = frames_.find(frame);
    return found == frames_.end() ? nullptr : found->second.get();
}

EditorWindow* MainWindow::activeEditor() const {
    EditorDocument* document = documentOf(area_->currentSubWindow());
    return document != nullptr ? document->editor() : nullptr;
}

std::vector<EditorWindow*> MainWindow::editors() const {
    std::vector<EditorWindow*> all;
    for (const auto& [frame, document] : frames_) {
        if (document->editor() != nullptr) all.push_back(document->editor());
    }
    return all;
}

std::optional<std::string> MainWindow::openWindowText(const std::string& caption) const {
    const std::string wanted = upperCase(caption);
    for (const auto& [frame, document] : frames_) {
        if (upperCase(document->caption()) == wanted) return document->text();
    }
    return std::nullopt;
}

// --- the workspace of the document commands ---

DocumentWindow* MainWindow::createDocumentWindow() {
    auto* editor = new EditorWindow(flags_, settings_);
    QMdiSubWindow* frame = area_->addSubWindow(editor);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setWindowIcon(QIcon(QStringLiteral(":/icons/new.xpm")));
    // Ctrl+F4 belongs to the uncomment command, not to closing the window.
    for (QAction* action : frame->systemMenu()->actions()) action->setShortcuts({});
    frame->installEventFilter(this);
    frame->resize(area_->viewport()->width() * 3 / 5, area_->viewport()->height() * 3 / 5);
    frame->hide();
    auto document = std::make_unique<EditorDocument>(editor, frame);
    EditorDocument* raw = document.get();
    frames_.emplace(frame, std::move(document));

    editor->setHost(&host_);
    editor->setHelpHandler([this](const std::string& word) { showHelpForWord(word); });
    connect(editor, &EditorWindow::editMenuRequested, this, [this](const QPoint& at) {
        if (QMenu* edit = menus_->menu(QStringLiteral("mnuEdit"))) edit->popup(at);
    });
    connect(editor, &EditorWindow::textEdited, this, [this, raw] { commands_.TextEdited(*raw); });
    connect(editor, &EditorWindow::searchInterrupted, this,
            [this] { findState_.FindFirstPass = false; });
    connect(editor, &EditorWindow::selectionTouched, this, [this, raw] {
        commands_.Touched(*raw);
        updateEditCommands();
    });
    connect(editor, &EditorWindow::caretStateChanged, this, [this, editor] {
        if (editor == activeEditor()) updateStatus();
    });
    connect(editor->textEdit(), &QTextEdit::selectionChanged, this, [this, editor] {
        if (editor == activeEditor()) updateEditCommands();
    });
    connect(frame, &QObject::destroyed, this, [this, frame] { frameDestroyed(frame); });
    return raw;
}

void MainWindow::showDocumentWindow(DocumentWindow& window) {
    QMdiSubWindow* frame = static_cast<EditorDocument&>(window).frame();
    if (frame == nullptr) return;
    if (!frame->property("placed").toBool()) {
        // As a new child window of the classic frame: three quarters of the
        // inner area, each one a step further down and right.
        frame->setProperty("placed", true);
        const QSize inner = area_->viewport()->size();
        const int step = 24 * static_cast<int>((area_->subWindowList().size() - 1) % 8);
        frame->resize(std::max(inner.width() * 3 / 4, 320), std::max(inner.height() * 3 / 4, 200));
        frame->move(step, step);
    }
    frame->show();
    area_->setActiveSubWindow(frame);
    refreshCommands();
}

void MainWindow::focusDocumentWindow(DocumentWindow& window) {
    auto& document = static_cast<EditorDocument&>(window);
    if (document.frame() == nullptr) return;
    if (document.frame()->isMinimized()) document.frame()->showNormal();
    area_->setActiveSubWindow(document.frame());
    if (document.editor() != nullptr) document.editor()->textEdit()->setFocus();
}

DocumentWindow* MainWindow::activeDocumentWindow() {
    return documentOf(area_->currentSubWindow());
}

void MainWindow::placeInHalf(DocumentWindow& window, bool right) {
    gui::placeInHalf(area_, static_cast<EditorDocument&>(window).frame(), right);
}

void MainWindow::setWaitCursor(bool waiting) {
    if (waiting) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void MainWindow::showRecentFiles(const std::vector<std::string>& paths) {
    menus_->setRecentFiles(paths);
}

// --- activation, closing ---

void MainWindow::windowActivated(QMdiSubWindow* frame) {
    if (closing_) return;
    if (EditorDocument* document = documentOf(frame)) {
        // Undo of replace all belongs to the text it was done in.
        if (findDialog_ != nullptr && document->editor() != nullptr &&
            &document->editor()->textControl() != lastFindText_)
            findDialog_->disableUndo();
        if (document->editor() != nullptr) lastFindText_ = &document->editor()->textControl();
        commands_.Touched(*document);
    }
    if (frame != nullptr && frame == compileFrame_) compileDialog_->focusStart();
    refreshCommands();
}

ChildKind MainWindow::childKindOf(QMdiSubWindow* frame) const {
    if (frame == nullptr) return ChildKind::None;
    if (documentOf(frame) != nullptr) return ChildKind::Source;
    if (frame == compileFrame_) return ChildKind::Compile;
    const QString name = frame->widget() != nullptr ? frame->widget()->objectName() : QString();
    if (name == QLatin1String("frmListing")) return ChildKind::Listing;
    if (name == QLatin1String("frmHexDump")) return ChildKind::HexDump;
    if (name == QLatin1String("frmBinDump")) return ChildKind::BinDump;
    if (name == QLatin1String("frmCPUTreiber")) return ChildKind::CpuDriver;
    if (name == QLatin1String("frmDateivergleich")) return ChildKind::FileComparison;
    return ChildKind::None;
}

void MainWindow::refreshCommands() {
    QMdiSubWindow* frame = area_->currentSubWindow();
    const ChildKind kind = documentOf(frame) != nullptr                 ? ChildKind::Source
                           : frame != nullptr && frame == compileFrame_ ? ChildKind::Compile
                                                                        : ChildKind::None;
    const CommandVisibility visibility = commandVisibility(kind);
    toolbar_->showPositions(visibility);
    menus_->showDocumentMenu(visibility.documentMenu, visibility.mainEditMenu);
    updateEditCommands();
    updateStatus();
}

void MainWindow::updateEditCommands() {
    QTextEdit* text = activeTextEdit();
    const bool selection = text != nullptr && text->textCursor().hasSelection();
    for (const char* name : {"mnuECut", "mnuECopy", "mnuEDelete"})
        menus_->action(QString::fromLatin1(name))->setEnabled(selection);
    toolbar_->position(8)->setEnabled(selection);
    toolbar_->position(9)->setEnabled(selection);
}

void MainWindow::updateStatus() {
    EditorWindow* editor = activeEditor();
    lineLabel_->setVisible(editor != nullptr);
    modeLabel_->setVisible(editor != nullptr);
    if (editor == nullptr) return;
    lineLabel_->setText(QStringLiteral("Zeile %1").arg(editor->caretLine()));
    modeLabel_->setText(editor->overwriteMode() ? QStringLiteral("Überschreiben")
                                                : QStringLiteral("Einfügen"));
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close && watched == compileFrame_ && compileFrame_ != nullptr) {
        // Its frame's close button hides the dialog, as its Schließen does;
        // during a run it stays.
        event->ignore();
        if (!compiling_) hideCompileDialog();
        return true;
    }
    if (event->type() == QEvent::Close && watched->property("sharedPlace").toBool())
        storeSharedPlace(static_cast<QMdiSubWindow*>(watched));
    if (event->type() == QEvent::Close) {
        if (EditorDocument* document = documentOf(qobject_cast<QMdiSubWindow*>(watched))) {
            if (!commands_.QueryClose(*document)) {
                event->ignore();
                return true;
            }
        }
    } else if (event->type() == QEvent::MouseButtonRelease) {
        if (watched == controllerLabel_) {
            runCommand(QStringLiteral("MnuController"));
            return true;
        }
        if (watched == lineLabel_ && activeEditor() != nullptr) {
            runCommand(QStringLiteral("mnuEGoto"));
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::frameDestroyed(QMdiSubWindow* frame) {
    const auto found = frames_.find(frame);
    if (closing_ || found == frames_.end()) return;
    // The editor goes after its frame: it has nothing more to tell.
    if (EditorWindow* editor = found->second->editor()) {
        disconnect(editor, nullptr, this, nullptr);
        disconnect(editor->textEdit(), nullptr, this, nullptr);
    }
    commands_.DocumentClosed(*found->second);
    frames_.erase(found);
    refreshCommands();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (compiling_) {
        event->ignore();
        return;
    }
    storeCompilePlace();
    for (QMdiSubWindow* frame : area_->subWindowList()) {
        if (frame == compileFrame_) continue;
        if (!frame->close()) {
            event->ignore();
            return;
        }
    }
    settings_.toolbar = toolbar_->state();
    writeEndSettings(settings_, programFolder_, host_);
    event->accept();
}

void MainWindow::fillWindowMenu(QMenu* menu) {
    qDeleteAll(windowList_);
    windowList_.clear();
    const QList<QMdiSubWindow*> frames = area_->subWindowList(QMdiArea::CreationOrder);
    if (frames.isEmpty()) return;
    windowList_ << menu->addSeparator();
    int number = 1;
    for (QMdiSubWindow* frame : frames) {
        QString title = frame->windowTitle();
        title.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* action = menu->addAction(QStringLiteral("&%1 %2").arg(number++).arg(title));
        action->setCheckable(true);
        action->setChecked(frame == area_->currentSubWindow());
        connect(action, &QAction::triggered, this, [this, frame] {
            if (frame->isMinimized()) frame->showNormal();
            area_->setActiveSubWindow(frame);
        });
        windowList_ << action;
    }
}

// --- colours and settings ---

void MainWindow::showColours(const Settings& withColours) {
    area_->setBackground(toQColor(withColours.Colours[kMainBackground], area_->palette()));
    for (EditorWindow* editor : editors()) editor->applySettings(withColours);
}

void MainWindow::settingsApplied(bool wrappingChanged, bool bookmarksTurnedOff) {
    showColours(settings_);
    toolbar_->applyState(settings_.toolbar);
    if (wrappingChanged) {
        for (const auto& [frame, document] : frames_) {
            if (!isDisassembly(document->caption()) && document->editor() != nullptr)
                document->editor()->applySettings(settings_);
        }
    }
    if (bookmarksTurnedOff) {
        for (EditorWindow* editor : editors()) editor->removeBookmarks();
    }
}

}  // namespace korvex::gui
