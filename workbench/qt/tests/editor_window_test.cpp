// The source window through real keys and clicks on the offscreen screen.
#include "gui/editor_window.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

#include "workbench/text_control.h"

namespace korvex::gui {
namespace {

class EditorWindowTest : public ::testing::Test {
  protected:
    EditorWindowTest() {
        settings.BookmarksEnabled = true;
        window = std::make_unique<EditorWindow>(flags, settings);
        window->resize(500, 300);
        window->show();
    }

    TextControl& box() { return window->textControl(); }
    QTextEdit* edit() { return window->textEdit(); }

    // Puts the caret at `position` as a click would.
    void caretAt(std::int32_t position) {
        box().SetSelStart(position);
        QCoreApplication::processEvents();
    }

    EditorFlags flags;
    Settings settings = defaultSettings("/korvex/");
    std::unique_ptr<EditorWindow> window;
};

TEST_F(EditorWindowTest, EnterIndentsLikeTheLineAbove) {
    window->setSourceText("\tMOV A,#1");
    QSignalSpy edited(window.get(), &EditorWindow::textEdited);
    caretAt(box().TextLength());
    QTest::keyClick(edit(), Qt::Key_Return);
    QTest::keyClicks(edit(), "NOP");
    EXPECT_EQ(window->sourceText(), "\tMOV A,#1\r\n\tNOP");
    EXPECT_EQ(window->caretLine(), 2);
    EXPECT_GE(edited.count(), 1);
}

// The window's own layout: lines counted where the caret goes, wrapped
// lines included, and clicks land where the text is drawn.
TEST_F(EditorWindowTest, TheCaretLineFollowsTheCaretThroughALongText) {
    std::string text;
    for (int line = 1; line <= 300; ++line)
        text += "\tnop\t; Zeile " + std::to_string(line) + "\r\n";
    window->setSourceText(text);
    QCoreApplication::processEvents();
    QTest::keyClick(edit(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(window->caretLine(), 301);
    QTest::keyClick(edit(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(window->caretLine(), 1);
    QTest::keyClick(edit(), Qt::Key_Down);
    QTest::keyClick(edit(), Qt::Key_Down);
    EXPECT_EQ(window->caretLine(), 3);
    // A click on the third line's text puts the caret there.
    const QRect third = edit()->cursorRect();
    caretAt(0);
    QTest::mouseClick(edit()->viewport(), Qt::LeftButton, {}, third.center() + QPoint(0, 1));
    EXPECT_EQ(window->caretLine(), 3);
    // A line longer than the window wraps and counts twice.
    window->setSourceText(std::string(2000, 'x') + "\r\nnop");
    QCoreApplication::processEvents();
    caretAt(box().TextLength());
    EXPECT_GT(window->caretLine(), 2);
}

TEST_F(EditorWindowTest, TypedCommentTakesItsColourWhenTheCaretLeavesTheLine) {
    QTest::keyClicks(edit(), "MOV A ;x");
    box().Select(6, 1);
    EXPECT_EQ(box().SelColor(), kBlack);  // the line is being edited
    caretAt(box().TextLength());
    QTest::keyClick(edit(), Qt::Key_Return);
    box().Select(6, 2);
    EXPECT_EQ(box().SelColor(), settings.Colours[kCommentColour]);
    box().Select(0, 1);
    EXPECT_EQ(box().SelColor(), kBlack);
}

TEST_F(EditorWindowTest, ABookmarkFromTheStripNeverReachesTheSourceText) {
    window->setSourceText("NOP\r\nRET");
    QTextCursor secondLine(edit()->document()->findBlockByNumber(1));
    const int y = edit()->cursorRect(secondLine).center().y();
    QTest::mouseClick(edit()->viewport(), Qt::LeftButton, {}, QPoint(0, y));
    EXPECT_TRUE(box().PicturePositions().empty());  // the very edge doesn't count
    QTest::mouseClick(edit()->viewport(), Qt::LeftButton, {}, QPoint(3, y));
    EXPECT_EQ(box().PicturePositions(), (std::vector<std::int32_t>{5, 6, 7}));
    EXPECT_EQ(window->sourceText(), "NOP\r\nRET");
    window->removeBookmarks();
    EXPECT_TRUE(box().PicturePositions().empty());
    EXPECT_EQ(box().Text(), "NOP\r\nRET");
}

TEST_F(EditorWindowTest, TheWindowsOwnKeys) {
    window->setSourceText("A\r\nMOV B\r\nC");
    std::string helpWord;
    window->setHelpHandler([&](const std::string& word) { helpWord = word; });
    caretAt(4);
    QTest::keyClick(edit(), Qt::Key_F1);
    EXPECT_EQ(helpWord, "MOV");
    QTest::keyClick(edit(), Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(box().SelText(), "MOV B\r\n");
    QTest::keyClick(edit(), Qt::Key_F3, Qt::ControlModifier);
    EXPECT_EQ(window->sourceText(), "A\r\n;MOV B\r\nC");
    box().Select(0, box().TextLength());
    QTest::keyClick(edit(), Qt::Key_Tab);
    EXPECT_EQ(window->sourceText(), "\tA\r\n\t;MOV B\r\n\tC");
    box().Select(0, box().TextLength());
    QTest::keyClick(edit(), Qt::Key_Delete);
    EXPECT_EQ(window->sourceText(), "");
}

TEST_F(EditorWindowTest, LinesCountAsTheWidgetWrapsThem) {
    std::string longLine;
    for (int i = 0; i < 60; ++i) longLine += "wort ";
    window->setSourceText(longLine + "\r\nEND");
    const std::int32_t end = box().TextLength();
    const std::int32_t wrapped = box().GetLineFromChar(end);
    EXPECT_GT(wrapped, 2);
    EXPECT_EQ(box().GetLineFromChar(0), 0);

    box().Select(0, 200);  // shorter, so fewer lines before "END"
    box().SetSelText("");
    EXPECT_LT(box().GetLineFromChar(box().TextLength()), wrapped);
    box().SetRightMargin(100000);
    EXPECT_EQ(box().GetLineFromChar(box().TextLength()), 1);
}

}  // namespace
}  // namespace korvex::gui
