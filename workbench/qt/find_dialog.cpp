#include "gui/find_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/qt_text.h"

namespace korvex::gui {
namespace {

QPushButton* button(const QString& caption, const char* name) {
    auto* made = new QPushButton(caption);
    made->setObjectName(QString::fromLatin1(name));
    return made;
}

QCheckBox* checkBox(const QString& caption, const char* name) {
    auto* made = new QCheckBox(caption);
    made->setObjectName(QString::fromLatin1(name));
    return made;
}

QComboBox* comboBox(const char* name) {
    auto* made = new QComboBox;
    made->setObjectName(QString::fromLatin1(name));
    made->setEditable(true);
    made->setInsertPolicy(QComboBox::NoInsert);
    made->setMinimumContentsLength(28);
    return made;
}

}  // namespace

FindDialog::FindDialog(FindState& state, FindReplace& find,
                       std::function<TextControl*()> activeText, std::function<void()> focusText,
                       QWidget* parent)
    : QDialog(parent, Qt::Tool),
      state_(state),
      find_(find),
      activeText_(std::move(activeText)),
      focusText_(std::move(focusText)) {
    setObjectName(QStringLiteral("frmFind"));
    setWindowTitle(QStringLiteral("Suchen"));
    setModal(false);
    setAttribute(Qt::WA_DeleteOnClose);

    findCombo_ = comboBox("FindCombo");
    replaceCombo_ = comboBox("ReplaceCombo");
    auto* findLabel = new QLabel(QStringLiteral("Suchen &nach:"));
    findLabel->setObjectName(QStringLiteral("FindLabel_0"));
    findLabel->setBuddy(findCombo_);
    replaceLabel_ = new QLabel(QStringLiteral("Ersetzen &durch"));
    replaceLabel_->setObjectName(QStringLiteral("FindLabel_1"));
    replaceLabel_->setBuddy(replaceCombo_);
    replacing_ = checkBox(QStringLiteral("Erset&zen..."), "FindCheckErsetzen");

    auto* frame = new QGroupBox(QStringLiteral("Suchoptionen"));
    frame->setObjectName(QStringLiteral("Frame1"));
    matchCase_ = checkBox(QStringLiteral("&Groß-/Kleinschreibung beachten"), "chkCase");
    wholeWord_ = checkBox(QStringLiteral("&Wortweise suchen"), "chkWord");
    selectionOnly_ = checkBox(QStringLiteral("Nur im ausgewählten &Bereich"), "chkSelect");
    auto* options = new QVBoxLayout(frame);
    options->addWidget(matchCase_);
    options->addWidget(wholeWord_);
    options->addWidget(selectionOnly_);

    findButton_ = button(QStringLiteral("&Suchen"), "cmdFind");
    findButton_->setDefault(true);
    replace_ = button(QStringLiteral("&Ersetzen"), "cmdReplace");
    replaceAll_ = button(QStringLiteral("&Alle ersetzen"), "cmdReplaceAll");
    undo_ = button(QStringLiteral("Undo alle ersetzen"), "cmdUndo");
    undo_->setEnabled(false);
    QPushButton* cancel = button(QStringLiteral("Abbre&chen"), "cmdcancel");

    auto* boxes = new QVBoxLayout;
    boxes->addWidget(findLabel);
    boxes->addWidget(findCombo_);
    boxes->addWidget(replaceLabel_);
    boxes->addWidget(replaceCombo_);
    boxes->addWidget(frame);
    boxes->addStretch();
    auto* buttons = new QVBoxLayout;
    for (QWidget* widget : {static_cast<QWidget*>(findButton_), static_cast<QWidget*>(replacing_),
                            static_cast<QWidget*>(replace_), static_cast<QWidget*>(replaceAll_),
                            static_cast<QWidget*>(undo_), static_cast<QWidget*>(cancel)})
        buttons->addWidget(widget);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(boxes, 1);
    layout->addLayout(buttons);

    connect(findCombo_, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { findButton_->setEnabled(!text.isEmpty()); });
    connect(replacing_, &QCheckBox::toggled, this, &FindDialog::setReplacing);
    connect(findButton_, &QPushButton::clicked, this, &FindDialog::findPressed);
    connect(replace_, &QPushButton::clicked, this, &FindDialog::replacePressed);
    connect(replaceAll_, &QPushButton::clicked, this, &FindDialog::replaceAllPressed);
    connect(undo_, &QPushButton::clicked, this, &FindDialog::undoPressed);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    // What the last dialog left.
    matchCase_->setChecked(state_.FindCaseChecked != 0);
    wholeWord_->setChecked(state_.FindWordChecked != 0);
    fillCombo(findCombo_, state_.FindHistory);
    fillCombo(replaceCombo_, state_.ReplaceHistory);
    findCombo_->setEditText(fromCp1252(shownTerm(state_.SearchText)));
    findButton_->setEnabled(!findCombo_->currentText().isEmpty());
    state_.FindWrapped = false;
    state_.FindFirstPass = false;
    state_.FindDialogOpen = true;
    setReplacing(false);
}

void FindDialog::fillCombo(QComboBox* combo, const std::vector<std::string>& history) {
    const QString kept = combo->currentText();
    combo->clear();
    for (const std::string& term : history) combo->addItem(fromCp1252(term));
    // The long forms of a tab and a line end are always at hand.
    for (const std::string_view form : {kTabForm, kLineEndForm})
        if (combo->findText(fromCp1252(std::string(form)), Qt::MatchExactly) < 0)
            combo->addItem(fromCp1252(std::string(form)));
    combo->setEditText(kept);
}

void FindDialog::openOn(const FindOpening& opening) {
    if (opening.fromSelection) findCombo_->setEditText(fromCp1252(opening.term));
    selectionOnly_->setEnabled(opening.selectEnabled);
    selectionOnly_->setChecked(state_.FindSelectChecked != 0);
    show();
    raise();
    activateWindow();
    findCombo_->setFocus();
}

void FindDialog::setReplacing(bool replacing) {
    if (replacing_->isChecked() != replacing) replacing_->setChecked(replacing);
    if (replacing) {
        replaceCombo_->setEditText(fromCp1252(shownTerm(state_.ReplaceText)));
    } else {
        state_.ReplaceText = translateReplacement(toCp1252(replaceCombo_->currentText()));
    }
    for (QWidget* part : {static_cast<QWidget*>(replaceLabel_),
                          static_cast<QWidget*>(replaceCombo_), static_cast<QWidget*>(replace_),
                          static_cast<QWidget*>(replaceAll_), static_cast<QWidget*>(undo_)})
        part->setVisible(replacing);
    if (replacing) replaceCombo_->setFocus();
    adjustSize();
}

void FindDialog::disableUndo() {
    undo_->setEnabled(false);
}

FindBoxes FindDialog::boxes() const {
    FindBoxes boxes;
    boxes.findText = toCp1252(findCombo_->currentText());
    boxes.replaceText = toCp1252(replaceCombo_->currentText());
    boxes.matchCase = matchCase_->isChecked();
    boxes.wholeWord = wholeWord_->isChecked();
    boxes.selectionOnly = selectionOnly_->isEnabled() && selectionOnly_->isChecked();
    return boxes;
}

// The histories are rewritten from what the searches took over.
void FindDialog::rememberBoxes() {
    fillCombo(findCombo_, state_.FindHistory);
    fillCombo(replaceCombo_, state_.ReplaceHistory);
}

void FindDialog::findPressed() {
    TextControl* text = activeText_();
    if (text == nullptr) return;
    undo_->setEnabled(false);
    find_.FindButton(*text, boxes());
    rememberBoxes();
}

void FindDialog::replacePressed() {
    TextControl* text = activeText_();
    if (text == nullptr) return;
    undo_->setEnabled(false);
    find_.Replace(*text, boxes());
    rememberBoxes();
}

void FindDialog::replaceAllPressed() {
    TextControl* text = activeText_();
    if (text == nullptr || findCombo_->currentText().isEmpty()) return;
    const int count = find_.ReplaceAll(*text, boxes());
    rememberBoxes();
    if (count != 0) undo_->setEnabled(true);
}

void FindDialog::undoPressed() {
    TextControl* text = activeText_();
    if (text == nullptr) return;
    const bool selectionOnly = selectionOnly_->isChecked();
    find_.UndoReplaceAll(*text);
    selectionOnly_->setChecked(selectionOnly);
    undo_->setEnabled(false);
}

void FindDialog::done(int result) {
    state_.FindCaseChecked = matchCase_->isChecked() ? 1 : 0;
    state_.FindWordChecked = wholeWord_->isChecked() ? 1 : 0;
    state_.FindSelectChecked = selectionOnly_->isChecked() ? 1 : 0;
    state_.SearchText = translateSearchTerm(toCp1252(findCombo_->currentText()));
    state_.FindDialogOpen = false;
    QDialog::done(result);
}

}  // namespace korvex::gui
