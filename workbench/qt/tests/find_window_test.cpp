// frmFind over a source window: "^t" and "^p" in the boxes, F3, replace all
// and its undo, and the dialog's memory from one opening to the next.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

#include "base/cp1252.h"
#include "gui/find_dialog.h"
#include "main_window_fixture.h"

namespace korvex::gui {
namespace {

struct FindBench : Bench {
    FindDialog* dialog() const { return window.findDialog(); }
    template <typename Widget>
    Widget* part(const char* name) const {
        return dialog()->findChild<Widget*>(QString::fromLatin1(name));
    }
    void type(const char* combo, const QString& text) { part<QComboBox>(combo)->setEditText(text); }
    void press(const char* name) { part<QPushButton>(name)->click(); }
    std::string text() const { return toCp1252(Bench::text()->toPlainText()); }
    std::string selection() const { return window.activeEditor()->textControl().SelText(); }
};

TEST(FindWindow, TabsAndLineEndsAreFoundAndReplacedThroughTheirShortForms) {
    FindBench bench;
    bench.window.activeEditor()->setSourceText("\tmov a,b\r\n\tmov b,a\r\nret");
    bench.trigger("mnuSFind");
    ASSERT_NE(bench.dialog(), nullptr);
    EXPECT_EQ(bench.dialog()->windowTitle(), QStringLiteral("Suchen"));
    EXPECT_FALSE(bench.part<QCheckBox>("chkSelect")->isEnabled());
    EXPECT_FALSE(bench.part<QPushButton>("cmdFind")->isEnabled());  // nothing to search for
    bench.type("FindCombo", QStringLiteral("^p^t"));
    bench.press("cmdFind");
    EXPECT_EQ(bench.selection(), "\r\n\t");

    // Replace all, its message, and its undo.
    bench.part<QCheckBox>("FindCheckErsetzen")->click();
    EXPECT_TRUE(bench.part<QComboBox>("ReplaceCombo")->isVisible());
    bench.type("FindCombo", QStringLiteral("^t"));
    bench.type("ReplaceCombo", QStringLiteral("    "));
    bench.press("cmdReplaceAll");
    EXPECT_EQ(bench.text(), "    mov a,b\n    mov b,a\nret");
    ASSERT_FALSE(bench.host.boxes.empty());
    EXPECT_EQ(bench.host.boxes.back().text,
              "Der angegebene Bereich wurde durchsucht. Es wurden 2 Begriffe ersetzt.");
    auto* undo = bench.part<QPushButton>("cmdUndo");
    EXPECT_TRUE(undo->isEnabled());
    undo->click();
    EXPECT_EQ(bench.text(), "\tmov a,b\n\tmov b,a\nret");
    EXPECT_FALSE(undo->isEnabled());

    // A new search ends the undo; the histories keep the terms.
    bench.press("cmdReplaceAll");
    bench.press("cmdFind");
    EXPECT_FALSE(undo->isEnabled());
    EXPECT_GE(bench.part<QComboBox>("FindCombo")->findText(QStringLiteral("^p^t")), 0);
}

TEST(FindWindow, F3FindsOnAfterTheDialogClosedAndItOpensAgainAsItWasLeft) {
    FindBench bench;
    bench.window.activeEditor()->setSourceText("mov a,r0\r\nMOV r0,a\r\nmov a,ar0");
    QApplication::setActiveWindow(&bench.window);
    bench.Bench::text()->setFocus();
    QTest::keyClick(bench.Bench::text(), Qt::Key_F3);  // nothing searched yet: the dialog opens
    ASSERT_NE(bench.dialog(), nullptr);
    bench.type("FindCombo", QStringLiteral("r0"));
    bench.part<QCheckBox>("chkWord")->click();
    bench.part<QCheckBox>("chkCase")->click();
    bench.press("cmdFind");
    EXPECT_EQ(bench.window.activeEditor()->textControl().SelStart(), 6);
    bench.press("cmdcancel");
    Bench::settle();
    EXPECT_EQ(bench.dialog(), nullptr);

    bench.trigger("mnuSFindNext");
    EXPECT_EQ(bench.window.activeEditor()->textControl().SelStart(), 14);
    bench.trigger("mnuSFindNext");  // "ar0" is no whole word: round to the start
    EXPECT_EQ(bench.host.boxes.back().text, "Der angegebene Bereich wurde durchsucht.");

    bench.trigger("mnuSReplace");
    ASSERT_NE(bench.dialog(), nullptr);
    EXPECT_TRUE(bench.part<QCheckBox>("chkWord")->isChecked());
    EXPECT_TRUE(bench.part<QCheckBox>("chkCase")->isChecked());
    EXPECT_TRUE(bench.part<QCheckBox>("FindCheckErsetzen")->isChecked());
    EXPECT_EQ(bench.part<QComboBox>("FindCombo")->currentText(), QStringLiteral("r0"));
}

}  // namespace
}  // namespace korvex::gui
