#pragma once
// frmMDI: the main window. It owns the settings, the document table, the
// source windows on its QMdiArea, the menus, Toolbar1 and the status bar,
// and runs the commands. Message boxes, file dialogs and the per-user store
// are handed in, so that tests can script them.

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "assembler/assembler.h"
#include "base/host.h"
#include "disassembler/disassembler.h"
#include "gui/editor_document.h"
#include "gui/find_dialog.h"
#include "gui/twips.h"
#include "workbench/command_visibility.h"
#include "workbench/document_table.h"
#include "workbench/editor_flags.h"
#include "workbench/file_commands.h"
#include "workbench/find_replace.h"
#include "workbench/go_to_line.h"
#include "workbench/help_topics.h"
#include "workbench/recent_files.h"
#include "workbench/settings.h"

class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QProgressBar;
class QSvgWidget;
class QTextEdit;

namespace korvex::gui {

class CommandMenus;
class CommandToolbar;
class CompileDialog;
class HelpWindow;
class ReferenceWindow;
class NotesWindow;
class WizardWindow;

struct MainWindowServices {
    Host& host;
    FileDialogs& dialogs;
    UserSettingsStore& userStore;
};

class MainWindow : public QMainWindow, private Workspace {
    Q_OBJECT

  public:
    MainWindow(std::string programFolder, MainWindowServices services, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Reads korvex.cfg and opens the first windows and the file named on the
    // command line. False when the user chose not to run without settings.
    bool start(const std::string& commandLine);

    // Runs a command of the menus or the toolbar by its name.
    void runCommand(const QString& name);

    Settings& settings() { return settings_; }
    const DocumentTable& documents() const { return documents_; }
    FileCommands& commands() { return commands_; }
    QMdiArea* area() const { return area_; }
    CommandMenus* menus() const { return menus_; }
    CommandToolbar* toolbar() const { return toolbar_; }
    // The active source window, nullptr when another window or none is active.
    EditorWindow* activeEditor() const;
    std::vector<EditorWindow*> editors() const;
    // The text of the source window with this caption (compared in upper
    // case), as a run reads an include that is open.
    std::optional<std::string> openWindowText(const std::string& caption) const;

    // frmCompile, made on first use; nullptr before.
    CompileDialog* compileDialogIfLoaded() const { return compileDialog_; }
    bool compiling() const { return compiling_; }
    // frmFind while it is open.
    FindDialog* findDialog() const { return findDialog_; }
    const FindState& findState() const { return findState_; }

    // The window of a chip's wizard ("52", "89S53", ...), made on first use; nullptr before.
    WizardWindow* wizardWindow(const std::string& chip) const;
    void openWizard(const std::string& chip);
    // The input boxes of the wizards ("Frequenz vorgeben"); a QInputDialog unless set.
    void setPrompt(PromptFunction prompt) { prompt_ = std::move(prompt); }
    // Date and time in the header of a wizard's program; the present moment unless set.
    void setWizardClock(std::function<std::string()> clock) { wizardClock_ = std::move(clock); }

    // Shows colours at once in every open window (the settings dialog's
    // preview), without storing them.
    void showColours(const Settings& withColours);
    // After the settings dialog stored its choices.
    void settingsApplied(bool wrappingChanged, bool bookmarksTurnedOff);

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Workspace
    DocumentWindow* createDocumentWindow() override;
    void showDocumentWindow(DocumentWindow& window) override;
    void focusDocumentWindow(DocumentWindow& window) override;
    DocumentWindow* activeDocumentWindow() override;
    void placeInHalf(DocumentWindow& window, bool right) override;
    void setWaitCursor(bool waiting) override;
    void showRecentFiles(const std::vector<std::string>& paths) override;

    void buildStatusBar();
    void registerCommands();
    void registerHelpCommands();
    void applyStartSettings();
    EditorDocument* documentOf(QMdiSubWindow* frame) const;
    void windowActivated(QMdiSubWindow* frame);
    void frameDestroyed(QMdiSubWindow* frame);
    ChildKind childKindOf(QMdiSubWindow* frame) const;
    void refreshCommands();
    void updateEditCommands();
    void updateStatus();
    void fillWindowMenu(QMenu* menu);
    void notAvailable(const QString& name);

    class CompileHost;
    void compileActiveWindow();
    CompileDialog* compileDialog();
    void showCompileDialog();
    void hideCompileDialog();
    void storeCompilePlace();
    StoredPlace compilePlace();
    void startCompile();
    void abortCompile();
    void showLastReport();
    void removeCompileFolder();

    // The viewers.
    QMdiSubWindow* addViewer(QWidget* viewer, const std::string& caption);
    void say(const std::string& text);
    void openListing();
    void openByteFile(bool hex);
    void storeSharedPlace(QMdiSubWindow* frame);
    StoredPlace sharedPlace();
    void showCpuFile();
    void openFileComparison();
    // The text of the active source or listing window, for editing and searching.
    QTextEdit* activeTextEdit() const;
    TextControl* activeTextControl() const;

    void showHelp(const HelpRequest& request);
    void showHelpFor(const char* command);
    void showHelpForWord(const std::string& word);
    void startCalculator();
    void showPins(const char* file, const QString& caption);
    void registerPinCommands();

    class WizardEditors;
    struct WizardSeat;
    void registerWizardCommands();
    std::string askWizardInput(const std::string& title, const std::string& text,
                               const std::string& offered);
    void closeWizards();

    void findLabel();
    void chooseController();
    void showReference();
    void showNotes();
    void showInsertDialog(bool include);
    void printText(QTextEdit* text);

    void openFindDialog(bool replacing);
    void findNext();

    void disassemble();
    void configureDisassembler();
    void print();
    void chooseFont();
    void editExtensions();
    void editSetup();

    std::string programFolder_;
    Host& host_;
    FileDialogs& dialogs_;
    Settings settings_;
    DocumentTable documents_;
    RecentFiles recent_;
    FileCommands commands_;
    EditorFlags flags_;

    QMdiArea* area_ = nullptr;
    CommandMenus* menus_ = nullptr;
    CommandToolbar* toolbar_ = nullptr;
    QLabel* lineLabel_ = nullptr;
    QLabel* modeLabel_ = nullptr;
    QLabel* controllerLabel_ = nullptr;
    QProgressBar* progress_ = nullptr;
    // SortAddresses and WithLabels: off at every start, not stored.
    DisassemblerOptions disassemblerOptions_;
    QList<QAction*> windowList_;
    std::map<QMdiSubWindow*, std::unique_ptr<EditorDocument>> frames_;
    QHash<QString, std::function<void()>> handlers_;
    bool closing_ = false;

    // The compile dialog and the long-lived assembler behind it.
    CompileDialog* compileDialog_ = nullptr;
    QMdiSubWindow* compileFrame_ = nullptr;
    std::unique_ptr<CompileHost> compileHost_;
    std::unique_ptr<Assembler> assembler_;
    std::string compileFolder_;  // holds TmpFile.tmp from the command to the end of its run
    bool compiling_ = false;

    // Find and replace: its state lasts as long as the program.
    FindState findState_;
    FindReplace find_{findState_, flags_, host_};
    QPointer<FindDialog> findDialog_;
    const TextControl* lastFindText_ = nullptr;
    std::int16_t labelSortState_ = 1;         // by label at the first opening of a run
    std::optional<QPoint> labelFinderPlace_;  // where the label finder was last, within a run
    QPointer<NotesWindow> notes_;
    QPointer<HelpWindow> helpWindow_;
    QPointer<ReferenceWindow> reference_;
    QPointer<QSvgWidget> pins_;

    // The wizards, one per chip for the whole run.
    std::map<std::string, std::unique_ptr<WizardSeat>> wizards_;
    std::unique_ptr<WizardEditors> wizardEditors_;
    PromptFunction prompt_;
    std::function<std::string()> wizardClock_;  // the text of the last active source window
};

}  // namespace korvex::gui
