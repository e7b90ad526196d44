#include "gui/compile_dialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

#include "gui/qt_text.h"
#include "gui/qt_text_control.h"
#include "workbench/editor_guards.h"
#include "workbench/report_colouring.h"

namespace korvex::gui {
namespace {

constexpr int kHelpTopic = 100;
const QString kStart = QStringLiteral("&Start");
const QString kAbort = QStringLiteral("&Abbrechen");

}  // namespace

CompileDialog::CompileDialog(EditorFlags& flags, std::int32_t commentColour, QWidget* parent)
    : QWidget(parent), flags_(flags), commentColour_(commentColour) {
    setObjectName(QStringLiteral("frmCompile"));
    setWindowTitle(QStringLiteral("Compiler"));

    name_ = new QLineEdit(QStringLiteral("Datei:"));
    name_->setObjectName(QStringLiteral("Label1"));

    auto* frame = new QGroupBox(QStringLiteral("Dateiarten"));
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* frameLayout = new QGridLayout(frame);
    const QString captions[] = {QStringLiteral("&Binärdatei"), QStringLiteral("&Hexdatei"),
                                QStringLiteral("&Listingdatei"), QStringLiteral("Symboldatei")};
    for (int index = 0; index < 4; ++index) {
        outputs_[index] = new QCheckBox(captions[index]);
        outputs_[index]->setObjectName(QStringLiteral("Check%1").arg(index + 1));
        // Hex and listing, as long as the dialog lives.
        outputs_[index]->setChecked(index == 1 || index == 2);
        frameLayout->addWidget(outputs_[index], index % 2, index / 2);
    }

    command1_ = new QPushButton(kStart);
    command1_->setObjectName(QStringLiteral("Command1"));
    command1_->setDefault(true);
    command2_ = new QPushButton(QStringLiteral("S&chließen"));
    command2_->setObjectName(QStringLiteral("Command2"));
    command3_ = new QPushButton(QStringLiteral("Hilf&e"));
    command3_->setObjectName(QStringLiteral("Command3"));
    connect(command1_, &QPushButton::clicked, this, &CompileDialog::command1Pressed);
    connect(command2_, &QPushButton::clicked, this, [this] { emit closeRequested(); });
    connect(command3_, &QPushButton::clicked, this, [this] { emit helpRequested(kHelpTopic); });

    text_ = new QTextEdit;
    text_->setObjectName(QStringLiteral("Text1"));
    text_->setReadOnly(true);
    text_->setAcceptRichText(false);
    report_ = std::make_unique<QtTextControl>(text_);
    {
        FlagGuard selection(flags_.SuspendSelChange);
        report_->SetSelIndent(60);
        report_->SetSelHangingIndent(300);
        report_->SetRightMargin(20000);
    }

    auto* left = new QVBoxLayout;
    left->addWidget(new QLabel(QStringLiteral("Datei:")));
    left->addWidget(name_);
    left->addWidget(frame);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(command1_);
    buttons->addWidget(command2_);
    buttons->addWidget(command3_);
    buttons->addStretch();
    auto* top = new QGridLayout;
    top->addLayout(left, 0, 0);
    top->addLayout(buttons, 0, 1);
    top->setColumnStretch(0, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(text_, 1);
}

CompileDialog::~CompileDialog() {
    report_.reset();
}

void CompileDialog::prepare(const std::string& name) {
    name_->setText(fromCp1252(name));
    name_->setCursorPosition(static_cast<int>(name_->text().size()));
    report_->SetText("");
    command1_->setEnabled(true);
    text_->show();
}

std::string CompileDialog::sourceName() const {
    return toCp1252(name_->text());
}

OutputSwitches CompileDialog::switches() const {
    return OutputSwitches{outputs_[0]->isChecked(), outputs_[1]->isChecked(),
                          outputs_[2]->isChecked(), outputs_[3]->isChecked()};
}

void CompileDialog::focusStart() {
    if (command1_->isEnabled()) command1_->setFocus();
}

void CompileDialog::command1Pressed() {
    if (command1_->text() == kStart)
        emit startRequested();
    else
        emit abortRequested();
}

void CompileDialog::beginRun() {
    running_ = true;
    command1_->setText(kAbort);
    command1_->setDefault(false);
    command2_->setEnabled(false);
    command3_->setEnabled(false);
    report_->SetText("\r\n arbeite ...");
}

void CompileDialog::endRun() {
    running_ = false;
    command1_->setText(kStart);
    command1_->setDefault(true);
    command2_->setEnabled(true);
    command3_->setEnabled(true);
    // One compile command, one run.
    command1_->setEnabled(false);
}

void CompileDialog::noteAborted() {
    appendText("Compilierung abgebrochen");
    command1_->setEnabled(false);
}

void CompileDialog::showReport(const std::string& text) {
    report_->SetText(text);
    ColourReport(*report_, flags_, commentColour_);
}

void CompileDialog::appendText(const std::string& text) {
    FlagGuard selection(flags_.SuspendSelChange);
    report_->SetSelStart(report_->TextLength());
    report_->SetSelText(text);
}

void CompileDialog::showLastReport(const std::string& text) {
    command1_->setEnabled(false);
    text_->hide();
    showReport(text);
    text_->show();
}

TextControl& CompileDialog::reportControl() {
    return *report_;
}

}  // namespace korvex::gui
