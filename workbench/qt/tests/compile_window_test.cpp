// F5 and the compile dialog: what is assembled, where the outputs land, the
// coloured report, stopping a run, projects, and the way back from a
// disassembly.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "base/cp1252.h"
#include "base/files.h"
#include "gui/compile_dialog.h"
#include "main_window_fixture.h"
#include "workbench/report_colouring.h"

namespace korvex::gui {
namespace {

struct CompileBench : Bench {
    CompileBench() {
        for (const char* driver : {"80C32.cpu", "8032.cpu"})
            writeWholeFile(folder.path() + driver,
                           readWholeFile(std::string(KORVEX_DATA_DIR) + "/cpu/" + driver));
    }

    std::string open(const std::string& name, const std::string& text) {
        const std::string path = folder.write(name, text);
        dialogs.answers = {path};
        trigger("mnuFOpen");
        return path;
    }
    CompileDialog* dialog() const { return window.compileDialogIfLoaded(); }
    template <typename Widget>
    Widget* part(const char* name) const {
        return dialog()->findChild<Widget*>(QString::fromLatin1(name));
    }
    void pressF5() {
        QApplication::setActiveWindow(&window);
        text()->setFocus();
        QTest::keyClick(text(), Qt::Key_F5);
    }
    std::string report() const { return dialog()->reportControl().Text(); }
};

TEST(CompileWindow, F5AssemblesTheEditedTextAndWritesTheChosenOutputsBesideTheFile) {
    CompileBench bench;
    const std::string path = bench.open("prog.a51", "#cpu 80C32\r\nNOP\r\n");
    bench.text()->moveCursor(QTextCursor::End);
    QTest::keyClicks(bench.text(), "mov a,#41h");  // not saved
    bench.pressF5();
    ASSERT_NE(bench.dialog(), nullptr);
    EXPECT_EQ(bench.caption(), QStringLiteral("Compiler"));
    EXPECT_EQ(bench.part<QLineEdit>("Label1")->text(), fromCp1252(path));
    EXPECT_FALSE(bench.part<QCheckBox>("Check1")->isChecked());
    EXPECT_TRUE(bench.part<QCheckBox>("Check2")->isChecked());
    EXPECT_TRUE(bench.part<QCheckBox>("Check3")->isChecked());
    EXPECT_FALSE(bench.part<QCheckBox>("Check4")->isChecked());
    bench.part<QCheckBox>("Check1")->click();
    bench.part<QCheckBox>("Check3")->click();

    auto* start = bench.part<QPushButton>("Command1");
    EXPECT_EQ(start->text(), QStringLiteral("&Start"));
    start->click();
    EXPECT_NE(bench.report().find("Zeilen"), std::string::npos) << bench.report();
    EXPECT_EQ(bench.folder.read("prog.b51"), std::string("\x00\x74\x41", 3));
    EXPECT_TRUE(fileExists(bench.folder.path() + "prog.h51"));
    EXPECT_FALSE(fileExists(bench.folder.path() + "prog.l51"));
    EXPECT_EQ(bench.folder.read("prog.a51"), "#cpu 80C32\r\nNOP\r\n");  // the file stays
    // One command, one run; the report can be shown again.
    EXPECT_FALSE(start->isEnabled());
    EXPECT_EQ(start->text(), QStringLiteral("&Start"));
    const std::string first = bench.report();
    bench.part<QPushButton>("Command2")->click();
    EXPECT_FALSE(bench.dialog()->isVisible());
    bench.trigger("MnCompStatus");
    EXPECT_EQ(bench.report(), first);
    EXPECT_FALSE(start->isEnabled());

    // Its place and size outlive the program, in twips.
    bench.dialog()->parentWidget()->setGeometry(20, 30, 500, 400);
    bench.window.close();
    EXPECT_EQ(bench.window.settings().CompileWindowLeft, 300);
    EXPECT_EQ(bench.window.settings().CompileWindowTop, 450);
    EXPECT_EQ(bench.window.settings().CompileWindowWidth, 7500);
    EXPECT_EQ(bench.window.settings().CompileWindowHeight, 6000);
}

TEST(CompileWindow, FindingsShowRedInTheReport) {
    CompileBench bench;
    bench.open("fehler.a51", "#cpu 80C32\r\nNOP\r\nmov q,#1\r\n");
    bench.pressF5();
    bench.part<QPushButton>("Command1")->click();
    const std::string report = bench.report();
    ASSERT_EQ(report.rfind("Warnungen/Fehler:", 0), 0u) << report;
    TextControl& box = bench.dialog()->reportControl();
    box.Select(0, 1);
    EXPECT_EQ(box.SelColor(), kReportRed);
    const std::size_t marker = report.find(";>err");
    ASSERT_NE(marker, std::string::npos) << report;
    box.Select(static_cast<std::int32_t>(marker) + 1, 1);
    EXPECT_EQ(box.SelColor(), kReportRed);
    EXPECT_EQ(box.SelFontName(), "Arial");
}

TEST(CompileWindow, AbbrechenStopsALongRun) {
    CompileBench bench;
    std::string text = "#cpu 80C32\r\n";
    for (int line = 0; line < 40000; ++line) text += "\tmov a,#12h\t; laden\r\n";
    bench.open("lang.a51", text);
    bench.pressF5();
    auto* button = bench.part<QPushButton>("Command1");
    QTimer::singleShot(0, button, [button] {
        EXPECT_EQ(button->text(), QStringLiteral("&Abbrechen"));
        button->click();
    });
    button->click();
    EXPECT_EQ(bench.report().substr(bench.report().size() - 24), "Compilierung abgebrochen");
    EXPECT_FALSE(button->isEnabled());
    EXPECT_TRUE(bench.part<QPushButton>("Command2")->isEnabled());
    EXPECT_FALSE(fileExists(bench.folder.path() + "lang.h51"));
    EXPECT_FALSE(bench.window.compiling());
}

TEST(CompileWindow, AProjectMemberCompilesItsProject) {
    CompileBench bench;
    bench.folder.write("haupt.a51", "#cpu 80C32\r\n#include teil.a51\r\nNOP\r\n");
    bench.open("teil.a51", "; #part of 'haupt.a51'\r\nRET\r\n");
    bench.pressF5();
    EXPECT_EQ(bench.part<QLineEdit>("Label1")->text(),
              fromCp1252(bench.folder.path() + "haupt.a51"));
    bench.part<QPushButton>("Command1")->click();
    EXPECT_EQ(bench.report().find("Warnungen/Fehler:"), std::string::npos) << bench.report();
    EXPECT_TRUE(fileExists(bench.folder.path() + "haupt.h51"));
    EXPECT_FALSE(fileExists(bench.folder.path() + "teil.h51"));

    // A project that isn't there: the message, and no dialog run.
    bench.open("waise.a51", "#part of fort.a51\r\nNOP\r\n");
    bench.host.boxes.clear();
    bench.pressF5();
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.host.boxes[0].text.rfind("Kann Projektdatei fort.a51 nicht finden.", 0), 0u);
}

TEST(CompileWindow, ADisassembledHexFileCompilesBackToItsBytes) {
    CompileBench bench;
    const std::string record = ":0700000074417580FE80FED3";
    const std::string hex = bench.folder.write("prog.h51", record + "\r\n:00000001FF\r\n");
    // Labels mode, chosen in the options dialog.
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QRadioButton*>(QStringLiteral("OptOhneLabel_0"))->click();
        dialog->close();
    });
    bench.trigger("mnuDisasKonfig");
    bench.dialogs.answers = {hex};
    bench.trigger("MnCompDisass");
    bench.dialogs.answers = {bench.folder.path() + "zurueck.a51"};
    bench.trigger("mnuFSaveAs");
    // A disassembly window is not compiled itself: its saved file is.
    bench.pressF5();
    EXPECT_EQ(bench.dialog(), nullptr);
    bench.dialogs.answers = {bench.folder.path() + "zurueck.a51"};
    bench.trigger("mnuFOpen");
    bench.pressF5();
    ASSERT_NE(bench.dialog(), nullptr);
    bench.part<QPushButton>("Command1")->click();
    EXPECT_EQ(bench.folder.read("zurueck.h51").substr(0, record.size()), record) << bench.report();
}

}  // namespace
}  // namespace korvex::gui
