#include "gui/listing_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QTextEdit>
#include <QVBoxLayout>

#include "gui/colour_map.h"
#include "gui/qt_text_control.h"
#include "workbench/colours.h"
#include "workbench/editor_guards.h"
#include "workbench/report_colouring.h"

namespace korvex::gui {
namespace {

// The listing's columns are counted in characters of 120 twips.
constexpr std::int32_t kCharacter = 120;
constexpr std::string_view kWordEnds = " .,;?!:=()\r\n\t";

}  // namespace

ListingWindow::ListingWindow(EditorFlags& flags, const Settings& settings, QWidget* parent)
    : QWidget(parent), flags_(flags), settings_(settings) {
    setObjectName(QStringLiteral("frmListing"));
    text_ = new QTextEdit(this);
    text_->setObjectName(QStringLiteral("RichTextBox1"));
    text_->setAcceptRichText(false);
    text_->setContextMenuPolicy(Qt::CustomContextMenu);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text_);
    box_ = std::make_unique<QtTextControl>(text_);
    {
        FlagGuard selection(flags_.SuspendSelChange);
        box_->SetSelTabCount(10);
        box_->SetSelTabs(0, 6 * kCharacter);
        for (int i = 1; i <= 4; ++i) box_->SetSelTabs(i, (6 + 3 * i) * kCharacter);
        for (int i = 5; i <= 9; ++i) box_->SetSelTabs(i, (22 + 2 * (i - 5)) * kCharacter);
        box_->SetSelIndent(1 * kCharacter);
        box_->SetSelHangingIndent(22 * kCharacter);
    }
    applyBackground();
    text_->installEventFilter(this);
    connect(text_, &QTextEdit::customContextMenuRequested, this, [this](const QPoint& at) {
        emit editMenuRequested(text_->viewport()->mapToGlobal(at));
    });
}

ListingWindow::~ListingWindow() {
    text_->removeEventFilter(this);
    box_.reset();
}

TextControl& ListingWindow::textControl() {
    return *box_;
}

void ListingWindow::load(const std::string& text) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    {
        FlagGuard change(flags_.SuspendChange);
        box_->SetText(text);
        ColourReport(*box_, flags_, settings_.Colours[kCommentColour]);
        box_->SetSelStart(0);
    }
    QApplication::restoreOverrideCursor();
}

void ListingWindow::applySettings(const Settings& settings) {
    const bool recolour = settings.Colours[kCommentColour] != settings_.Colours[kCommentColour];
    settings_ = settings;
    applyBackground();
    if (recolour) ColourReport(*box_, flags_, settings_.Colours[kCommentColour]);
}

void ListingWindow::applyBackground() {
    QPalette palette = text_->palette();
    palette.setColor(QPalette::Base,
                     toQColor(settings_.Colours[kListingBackground], QApplication::palette()));
    text_->setPalette(palette);
}

void ListingWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    box_->SetRightMargin(event->size().width() * 15 + 50);
}

bool ListingWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == text_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
        // The word around the caret, as the help knows words.
        FlagGuard selection(flags_.SuspendSelChange);
        const std::int32_t caret = box_->SelStart();
        box_->UpTo(kWordEnds, false, false);
        const std::int32_t start = box_->SelStart();
        box_->UpTo(kWordEnds, true, false);
        const std::int32_t end = box_->SelStart();
        box_->Select(start, end - start);
        const std::string word = box_->SelText();
        box_->SetSelStart(caret);
        if (help_) help_(word);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace korvex::gui
