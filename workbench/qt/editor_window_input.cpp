// The keyboard and the mouse of a source window: the form sees the keys
// before its text control does.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextEdit>

#include "base/failure.h"
#include "gui/bookmark_picture.h"
#include "gui/editor_window.h"
#include "gui/qt_text_control.h"
#include "workbench/block_edit.h"
#include "workbench/bookmarks.h"
#include "workbench/source_editor.h"

namespace korvex::gui {
namespace {

constexpr Qt::KeyboardModifiers kModifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

Qt::KeyboardModifiers modifierOfKey(int key) {
    switch (key) {
        case Qt::Key_Shift: return Qt::ShiftModifier;
        case Qt::Key_Control: return Qt::ControlModifier;
        case Qt::Key_Alt:
        case Qt::Key_AltGr: return Qt::AltModifier;
        default: return Qt::NoModifier;
    }
}

// The keys the window acts on itself, which no shortcut of the main window
// may take away.
bool isWindowKey(int key, Qt::KeyboardModifiers modifiers) {
    if (modifiers == Qt::NoModifier)
        return key == Qt::Key_F1 || key == Qt::Key_Delete || key == Qt::Key_Insert ||
               key == Qt::Key_Tab;
    if (modifiers == Qt::ControlModifier)
        return key == Qt::Key_F3 || key == Qt::Key_F4 || key == Qt::Key_G || key == Qt::Key_K;
    if (modifiers == Qt::AltModifier) return key == Qt::Key_S || key == Qt::Key_W;
    return key == Qt::Key_Backtab;
}

double twipsOf(const QMouseEvent* mouse) {
    return mouse->position().x() * 15;
}

}  // namespace

void EditorWindow::guarded(const char* procedure, const std::function<void()>& action) {
    try {
        action();
    } catch (...) {
        reportFailure(currentFailure(), procedure);
    }
}

bool EditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (editor_ == nullptr) return false;
    if (watched == text_) {
        switch (event->type()) {
            case QEvent::ShortcutOverride: return shortcutOverride(static_cast<QKeyEvent*>(event));
            case QEvent::KeyPress: return keyPress(static_cast<QKeyEvent*>(event));
            case QEvent::KeyRelease: return keyRelease(static_cast<QKeyEvent*>(event));
            case QEvent::FocusOut:
                // A modifier let go elsewhere must not keep the handler asleep.
                if (heldModifier_) {
                    heldModifier_ = false;
                    editor_->ModifiersReleased();
                }
                return false;
            default: return false;
        }
    }
    if (watched == text_->viewport()) return mouseEvent(event);
    return QWidget::eventFilter(watched, event);
}

bool EditorWindow::shortcutOverride(QKeyEvent* key) {
    if (!isWindowKey(key->key(), key->modifiers() & kModifiers)) return false;
    key->accept();
    return true;
}

bool EditorWindow::keyPress(QKeyEvent* key) {
    const int code = key->key();
    const Qt::KeyboardModifiers modifiers = key->modifiers() & kModifiers;
    editor_->KeyDown();
    if (code < Qt::Key_F1 || code > Qt::Key_F35) emit searchInterrupted();
    if (modifiers != Qt::NoModifier || modifierOfKey(code) != Qt::NoModifier) {
        heldModifier_ = true;
        editor_->ModifierDown();
    }

    if (code == Qt::Key_F1 && modifiers == Qt::NoModifier) {
        if (help_) help_(editor_->HelpWord());
        return true;
    }
    if ((code == Qt::Key_Return || code == Qt::Key_Enter) &&
        (modifiers & ~Qt::ShiftModifier) == Qt::NoModifier) {
        bool handled = false;
        guarded("RichTextBox1_KeyPress", [&] { handled = editor_->Enter(); });
        // Shift+Enter makes no line of its own kind: a line end as any other.
        if (!handled && modifiers == Qt::ShiftModifier) {
            box_->SetSelText("\r\n");
            handled = true;
        }
        return handled;
    }
    if (code == Qt::Key_Tab && modifiers == Qt::NoModifier) {
        if (box_->SelText().find("\r\n") == std::string::npos) return false;
        blockEdit(true, kIndentSymbol);
        return true;
    }
    if (code == Qt::Key_Backtab) {
        blockEdit(false, kIndentSymbol);
        return true;
    }
    if (modifiers == Qt::ControlModifier) {
        switch (code) {
            case Qt::Key_F3: blockEdit(true, kCommentSymbol); return true;
            case Qt::Key_F4: blockEdit(false, kCommentSymbol); return true;
            case Qt::Key_G: blockEdit(true, kIndentSymbol); return true;
            case Qt::Key_K: blockEdit(false, kIndentSymbol); return true;
            default: break;
        }
    }
    if (modifiers == Qt::AltModifier && (code == Qt::Key_S || code == Qt::Key_W))
        return true;  // acted on when the key comes up
    if (code == Qt::Key_Delete && modifiers == Qt::NoModifier && box_->SelLength() > 0) {
        deleteSelection();
        return true;
    }
    if (code == Qt::Key_Insert && modifiers == Qt::NoModifier) {
        text_->setOverwriteMode(!text_->overwriteMode());
        emit caretStateChanged();
        return true;
    }
    return false;
}

bool EditorWindow::keyRelease(QKeyEvent* key) {
    const int code = key->key();
    const Qt::KeyboardModifiers modifiers = key->modifiers() & kModifiers;
    bool handled = false;
    if (modifiers == Qt::AltModifier && code == Qt::Key_S) {
        editor_->SelectLine();
        handled = true;
    } else if (modifiers == Qt::AltModifier && code == Qt::Key_W) {
        editor_->SelectToPunctuation();
        handled = true;
    } else if ((code == Qt::Key_V && modifiers == Qt::ControlModifier) ||
               (code == Qt::Key_Insert && modifiers == Qt::ShiftModifier)) {
        guarded("RichTextBox1_KeyUp", [&] { editor_->KeyboardPasteDone(); });
    }
    if (heldModifier_ && (modifiers & ~modifierOfKey(code)) == Qt::NoModifier) {
        heldModifier_ = false;
        editor_->ModifiersReleased();
    }
    return handled;
}

bool EditorWindow::mouseEvent(QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove: {
            const bool strip = settings_.BookmarksEnabled && box_->TextLength() > 0 &&
                               InBookmarkStrip(twipsOf(static_cast<QMouseEvent*>(event)));
            if (strip)
                text_->viewport()->setCursor(bookmarkCursor());
            else
                text_->viewport()->setCursor(Qt::IBeamCursor);
            return false;
        }
        case QEvent::MouseButtonPress: emit searchInterrupted(); return false;
        case QEvent::MouseButtonRelease:
            // The press has put the caret at the line's start.
            if (InBookmarkStrip(twipsOf(static_cast<QMouseEvent*>(event))))
                editor_->ToggleBookmark();
            return false;
        default: return false;
    }
}

}  // namespace korvex::gui
