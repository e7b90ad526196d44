#pragma once
// frmCompile: the compile dialog. It shows what is assembled (Label1), the
// four outputs, the report (Text1) and the buttons; Command1 starts a run and,
// while one runs, stops it. The run itself is the main window's: the dialog
// says when its buttons are pressed and shows what it is given.

#include <QWidget>
#include <memory>
#include <string>

#include "assembler/assembler.h"
#include "workbench/editor_flags.h"

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace korvex {
class TextControl;
}

namespace korvex::gui {

class QtTextControl;

class CompileDialog : public QWidget {
    Q_OBJECT

  public:
    CompileDialog(EditorFlags& flags, std::int32_t commentColour, QWidget* parent = nullptr);
    ~CompileDialog() override;

    // A new compile command: the name, an empty report, Start ready.
    void prepare(const std::string& name);
    std::string sourceName() const;
    OutputSwitches switches() const;

    // Command1 turns into "&Abbrechen" for the run, and back afterwards,
    // dimmed until the next compile command.
    void beginRun();
    void endRun();
    // Pressed during a run: the run is told through abortRequested.
    void noteAborted();
    bool running() const { return running_; }
    // On activation: Command1, if it can be pressed.
    void focusStart();

    // Text1: a report replaces the text and is coloured; a line of the
    // include reader is added at the end.
    void showReport(const std::string& text);
    void appendText(const std::string& text);
    // The last report again, with nothing to start.
    void showLastReport(const std::string& text);
    TextControl& reportControl();
    void setCommentColour(std::int32_t colour) { commentColour_ = colour; }

  signals:
    void startRequested();
    void abortRequested();
    void closeRequested();
    void helpRequested(int topic);

  private:
    void command1Pressed();

    EditorFlags& flags_;
    std::int32_t commentColour_;
    QLineEdit* name_ = nullptr;
    QCheckBox* outputs_[4] = {};
    QTextEdit* text_ = nullptr;
    QPushButton* command1_ = nullptr;
    QPushButton* command2_ = nullptr;
    QPushButton* command3_ = nullptr;
    std::unique_ptr<QtTextControl> report_;
    bool running_ = false;
};

}  // namespace korvex::gui
