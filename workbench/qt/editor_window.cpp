#include "gui/editor_window.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QResizeEvent>
#include <QTextEdit>
#include <QVBoxLayout>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/host.h"
#include "gui/colour_map.h"
#include "gui/qt_text.h"
#include "gui/qt_text_control.h"
#include "workbench/document_format.h"
#include "workbench/editor_guards.h"
#include "workbench/source_editor.h"

namespace korvex::gui {

// What the editor logic tells the window, passed on as the window's signals.
class EditorWindow::Events : public EditorEvents {
  public:
    explicit Events(EditorWindow& window) : window_(window) {}
    void SetDirty() override { emit window_.textEdited(); }
    void BecameActive() override { emit window_.selectionTouched(); }
    void SelectionExtentChanged(bool hasSelection) override {
        emit window_.selectionExtentChanged(hasSelection);
    }
    void ShowCaretLine(std::int32_t) override { emit window_.caretStateChanged(); }

  private:
    EditorWindow& window_;
};

EditorWindow::EditorWindow(EditorFlags& flags, const Settings& settings, QWidget* parent)
    : QWidget(parent), flags_(flags), settings_(settings) {
    setObjectName(QStringLiteral("frmNotePad"));
    text_ = new QTextEdit(this);
    text_->setObjectName(QStringLiteral("RichTextBox1"));
    text_->setAcceptRichText(false);
    text_->setContextMenuPolicy(Qt::CustomContextMenu);
    text_->viewport()->setMouseTracking(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text_);

    box_ = std::make_unique<QtTextControl>(text_);
    events_ = std::make_unique<Events>(*this);
    editor_ = std::make_unique<SourceEditor>(*box_, flags_, settings_, *events_);
    editor_->InitialiseWindow();
    applyBackground();

    text_->installEventFilter(this);
    text_->viewport()->installEventFilter(this);
    connect(text_, &QTextEdit::customContextMenuRequested, this, [this](const QPoint& at) {
        emit editMenuRequested(text_->viewport()->mapToGlobal(at));
    });
    connect(this, &QWidget::windowTitleChanged, this, [this] {
        editor_->SetDisassembly(disassembly());
        applyBackground();
    });
}

EditorWindow::~EditorWindow() {
    // The widgets die after the members; they must not reach the logic then.
    text_->removeEventFilter(this);
    text_->viewport()->removeEventFilter(this);
    editor_.reset();
    box_.reset();
}

QTextEdit* EditorWindow::textEdit() const {
    return text_;
}

TextControl& EditorWindow::textControl() {
    return *box_;
}

SourceEditor& EditorWindow::editor() {
    return *editor_;
}

void EditorWindow::setSourceText(const std::string& cp1252) {
    editor_->LoadText(cp1252);
}

std::string EditorWindow::sourceText() const {
    return box_->TextWithoutPictures();
}

void EditorWindow::applySettings(const Settings& settings) {
    const Settings before = settings_;
    settings_ = settings;
    applyBackground();
    guarded("applySettings", [&] {
        if (before.Colours[kCommentColour] != settings_.Colours[kCommentColour])
            editor_->ApplyCommentColours();
        if (!disassembly() && (before.HangingIndent != settings_.HangingIndent ||
                               before.NoRightWrap != settings_.NoRightWrap))
            ApplyWrapSettings(*box_, flags_, settings_);
        if (!settings_.BookmarksEnabled) editor_->RemoveBookmarks();
    });
}

void EditorWindow::removeBookmarks() {
    editor_->RemoveBookmarks();
}

void EditorWindow::useDisassemblyTabs() {
    disassemblyTabs_ = true;
    editor_->SetDisassembly(true);
    {
        FlagGuard selection(flags_.SuspendSelChange);
        FlagGuard change(flags_.SuspendChange);
        const std::int32_t caret = box_->SelStart();
        box_->Select(0, box_->TextLength());
        ApplyDisassemblyParagraphs(*box_);
        box_->SetSelStart(caret);
    }
    applyBackground();
}

int EditorWindow::caretLine() const {
    return box_->GetLineFromChar(box_->SelStart()) + 1;
}

bool EditorWindow::overwriteMode() const {
    return text_->overwriteMode();
}

bool EditorWindow::hasSelection() const {
    return box_->SelLength() >= 1;
}

void EditorWindow::formatDocumentText() {
    guarded("FormatDocumentText", [&] { editor_->FormatDocumentText(); });
}

void EditorWindow::recolourWholeDocument() {
    editor_->RecolourWholeDocument();
}

void EditorWindow::blockEdit(bool add, char symbol) {
    guarded("BlockEdit", [&] { editor_->BlockEdit(add, symbol); });
}

void EditorWindow::deleteSelection() {
    guarded("mnuEDelete_Click", [&] { editor_->DeleteSelection(); });
}

void EditorWindow::goToLine() {
    PromptFunction prompt = prompt_;
    if (!prompt) {
        prompt = [this](const std::string& title, const std::string& text,
                        const std::string& offered) {
            bool ok = false;
            const QString answer =
                QInputDialog::getText(this, fromCp1252(title), fromCp1252(text), QLineEdit::Normal,
                                      fromCp1252(offered), &ok);
            return ok ? toCp1252(answer) : std::string();
        };
    }
    guarded("GoToLine", [&] { editor_->GoToLine(prompt); });
    text_->setFocus();
}

void EditorWindow::toggleBookmark() {
    editor_->ToggleBookmark();
}

void EditorWindow::setHelpHandler(std::function<void(const std::string&)> handler) {
    help_ = std::move(handler);
}

void EditorWindow::setPrompt(PromptFunction prompt) {
    prompt_ = std::move(prompt);
}

void EditorWindow::setHost(Host* host) {
    host_ = host;
}

bool EditorWindow::disassembly() const {
    return disassemblyTabs_ || windowTitle().startsWith(QStringLiteral("Disassembling "));
}

void EditorWindow::applyBackground() {
    const std::int32_t colour =
        settings_.Colours[disassembly() ? kDisassemblyBackground : kEditorBackground];
    QPalette palette = text_->palette();
    palette.setColor(QPalette::Base, toQColor(colour, QApplication::palette()));
    text_->setPalette(palette);
}

// The right margin follows the window's width: 8000 twips beyond it with
// NoRightWrap, else at the text's edge, where the widget wraps by itself.
void EditorWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int width = event->size().width();
    if (isMinimized() || width <= 0 || event->size().height() <= 0) return;
    box_->SetRightMargin(settings_.NoRightWrap ? 8000 + width * 15 : 0);
}

void EditorWindow::reportFailure(const RuntimeFailure& failure, const char* procedure) {
    const std::string text = failureBoxText(failure, procedure);
    if (host_ != nullptr) {
        host_->messageBox("Korvex", text, MessageButtons::Ok, MessageIcon::Critical);
        return;
    }
    QMessageBox::critical(this, QApplication::applicationName(), fromCp1252(text));
}

}  // namespace korvex::gui
