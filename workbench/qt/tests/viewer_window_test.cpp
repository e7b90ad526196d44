// The viewers: each open is a new window with its caption, the
// listing coloured as the report is, the grids showing what the files hold.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include "base/cp1252.h"
#include "base/files.h"
#include "gui/byte_grid_window.h"
#include "gui/listing_window.h"
#include "main_window_fixture.h"
#include "workbench/report_colouring.h"

namespace korvex::gui {
namespace {

struct ViewerBench : Bench {
    void open(const char* command, const std::string& path) {
        dialogs.answers = {path};
        trigger(command);
    }
    QWidget* viewer() const {
        QMdiSubWindow* frame = window.area()->currentSubWindow();
        return frame != nullptr ? frame->widget() : nullptr;
    }
    QString cell(int row, int column) const {
        auto* grid = viewer()->findChild<QTableView*>();
        return grid->model()->index(row, column).data().toString();
    }
    QString rowTitle(int row) const {
        auto* grid = viewer()->findChild<QTableView*>();
        return grid->model()->headerData(row, Qt::Vertical).toString();
    }
};

TEST(ViewerWindow, AListingOpensColouredAndTwiceInTwoWindows) {
    ViewerBench bench;
    const std::string listing = bench.folder.write(
        "prog.l51", "0000 00\tNOP\t; leer\r\n0001 FF\tmov q,#1 ;>err1: falsch\r\n");
    bench.open("mnuLOpen", listing);
    ASSERT_EQ(bench.dialogs.requests.size(), 1u);
    EXPECT_EQ(bench.dialogs.requests[0].title, text8("Listing öffnen"));
    EXPECT_EQ(bench.dialogs.requests[0].filter,
              "Listingdateien (*.l51)|*.l51|Alle Dateien (*.*)|*.*");
    auto* window = qobject_cast<ListingWindow*>(bench.viewer());
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(bench.caption(), QStringLiteral("Listing: prog.l51"));
    TextControl& box = window->textControl();
    EXPECT_EQ(box.Text(), readWholeFile(listing));
    box.Select(static_cast<std::int32_t>(box.Text().find(";>err")) + 2, 1);
    EXPECT_EQ(box.SelColor(), kReportRed);
    box.Select(static_cast<std::int32_t>(box.Text().find("; leer")) + 2, 1);
    EXPECT_EQ(box.SelFontName(), "Arial");
    EXPECT_EQ(bench.window.settings().listingFolder, bench.folder.path());

    // Find works in a listing; the toolbar hides what a listing can't do.
    bench.window.findChild<QTextEdit*>()->setFocus();
    box.SetSelStart(0);
    bench.trigger("mnuSFind");
    ASSERT_NE(bench.window.findDialog(), nullptr);
    bench.window.findDialog()
        ->findChild<QComboBox*>(QStringLiteral("FindCombo"))
        ->setEditText(QStringLiteral("mov"));
    bench.window.findDialog()->findChild<QPushButton*>(QStringLiteral("cmdFind"))->click();
    EXPECT_EQ(box.SelText(), "mov");
    EXPECT_FALSE(bench.button(21)->isVisible());  // TbrCompile

    bench.open("mnuLOpen", listing);
    EXPECT_EQ(bench.windows(), 3);
}

TEST(ViewerWindow, HexFilesShowTheirRowsOrSayWhyNot) {
    ViewerBench bench;
    const std::string hex =
        bench.folder.write("prog.h51", ":04000E0041420D0A00\r\n:0100120043AA\r\n:00000001FF\r\n");
    bench.open("MnuHexDump", hex);
    EXPECT_EQ(bench.caption(), QStringLiteral("Hexdatei: prog.h51"));
    ASSERT_NE(bench.viewer()->findChild<QTableView*>(QStringLiteral("MSFlexGrid1")), nullptr);
    EXPECT_EQ(bench.rowTitle(1), QStringLiteral("0010"));
    EXPECT_EQ(bench.cell(0, 15), QStringLiteral("42"));
    EXPECT_EQ(bench.cell(1, 2), QStringLiteral("43"));
    EXPECT_EQ(bench.cell(1, 16), QString::fromUtf8("··C") + QString(13, ' '));
    EXPECT_FALSE(bench.button(6)->isVisible());

    bench.host.boxes.clear();
    bench.open("MnuHexDump", bench.folder.write("leer.h51", ":00000001FF\r\n"));
    bench.open("MnuHexDump", bench.folder.write("text.h51", "Kein Hex, nur Text.\r\n"));
    ASSERT_EQ(bench.host.boxes.size(), 2u);
    EXPECT_EQ(bench.host.boxes[0].text,
              bench.folder.path() + text8("leer.h51 : Leere oder ungültige Hexdatei"));
    EXPECT_EQ(bench.host.boxes[1].text,
              bench.folder.path() + text8("text.h51 : Ungültiges Hexformat"));
    EXPECT_EQ(bench.host.boxes[1].icon, MessageIcon::None);
}

TEST(ViewerWindow, BinaryFilesAndTheDriverFile) {
    ViewerBench bench;
    bench.open("MnBinDump", bench.folder.write("prog.b51", std::string("ABCDEFGHIJKLMNOPQ")));
    EXPECT_EQ(bench.caption(), QString::fromUtf8("Binärdatei: prog.b51"));
    EXPECT_EQ(bench.rowTitle(1), QStringLiteral("0010"));
    EXPECT_EQ(bench.cell(1, 0), QStringLiteral("51"));
    EXPECT_EQ(bench.cell(1, 1), QString());
    // Hex and binary windows share their place, stored when one closes.
    bench.window.area()->currentSubWindow()->setGeometry(30, 45, 600, 450);
    bench.window.area()->currentSubWindow()->close();
    EXPECT_EQ(bench.window.settings().HexWindowLeft, 450);
    EXPECT_EQ(bench.window.settings().HexWindowHeight, 6750);
    bench.host.boxes.clear();
    bench.open("MnBinDump", bench.folder.write("leer.b51", ""));
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.host.boxes[0].text, bench.folder.path() + text8("leer.b51 : Leere Binärdatei"));

    // The driver of the configured controller, or what went wrong.
    bench.trigger("MnCPUeinsehen");
    ASSERT_EQ(bench.host.boxes.size(), 2u);
    EXPECT_EQ(bench.host.boxes[1].text.rfind("Kann Datei ", 0), 0u);
    const std::string driver = "; Treiber\r\nP0 = 80h\r\n";
    writeWholeFile(bench.folder.path() + bench.window.settings().ControllerName + ".cpu", driver);
    bench.trigger("MnCPUeinsehen");
    EXPECT_TRUE(bench.caption().startsWith(QStringLiteral("CPU-Datei: ")));
    EXPECT_EQ(
        bench.viewer()->findChild<QPlainTextEdit*>(QStringLiteral("CPUTextbox"))->toPlainText(),
        QStringLiteral("; Treiber\nP0 = 80h\n"));
}

TEST(ViewerWindow, AHexFileComparesWithItsBinaryImage) {
    ViewerBench bench;
    const std::string hex = bench.folder.write("prog.h51", ":0300020011223369\r\n:00000001FF\r\n");
    const std::string image =
        bench.folder.write("prog.b51", std::string("\xFF\xFF\x11\x22\x33", 5));
    const std::string other =
        bench.folder.write("other.b51", std::string("\xFF\xFF\x11\x99\x33!", 6));
    bench.trigger("MnDateivergleich");
    EXPECT_EQ(bench.caption(), QStringLiteral("Dateivergleich"));
    QWidget* window = bench.viewer();
    const auto part = [window](const char* name) {
        return window->findChild<QWidget*>(QString::fromLatin1(name));
    };
    bench.dialogs.answers = {hex, image};
    qobject_cast<QPushButton*>(part("Command1"))->click();
    qobject_cast<QPushButton*>(part("Command2"))->click();
    EXPECT_EQ(qobject_cast<QLineEdit*>(part("Text1_1"))->text(), QStringLiteral("32"));
    EXPECT_EQ(qobject_cast<QLineEdit*>(part("Text2_1"))->text(), QStringLiteral("5"));
    auto* compare = qobject_cast<QPushButton*>(part("Vergleich"));
    auto* list = qobject_cast<QPlainTextEdit*>(part("Text3"));
    compare->click();
    EXPECT_EQ(list->toPlainText(), QString());
    bench.dialogs.answers = {other};
    qobject_cast<QPushButton*>(part("Command2"))->click();
    compare->click();
    EXPECT_EQ(list->toPlainText(), QStringLiteral("000003h: 22 99\n"));
    // Two hex files of different record layouts hold the same bytes.
    bench.dialogs.answers = {bench.folder.write("zwei.h51",
                                                ":020002001122CB\r\n:0100040033C8\r\n"
                                                ":00000001FF\r\n")};
    qobject_cast<QPushButton*>(part("Command2"))->click();
    compare->click();
    EXPECT_EQ(list->toPlainText(), QString());
    // Without the expansion the hex file is compared as text.
    qobject_cast<QCheckBox*>(part("ChkHexumwandlung"))->click();
    compare->click();
    EXPECT_FALSE(list->toPlainText().isEmpty());
}

TEST(ViewerWindow, TheControllerChosenIsTheOneWhoseDriverIsShown) {
    ViewerBench bench;
    bench.folder.write("80C552.cpu", "; 552\r\n");
    bench.folder.write("C515.cpu", "; 515\r\n");
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Controllerwahl"));
        auto* combo = dialog->findChild<QComboBox*>(QStringLiteral("Combo1"));
        EXPECT_EQ(combo->count(), 2);
        combo->setCurrentIndex(1);
        dialog->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    });
    QTest::mouseClick(bench.window.findChild<QLabel*>(QStringLiteral("Label1")), Qt::LeftButton);
    EXPECT_EQ(bench.window.settings().ControllerName, "C515");
    EXPECT_EQ(bench.window.findChild<QLabel*>(QStringLiteral("Label1"))->text(),
              QStringLiteral("C515"));
    bench.trigger("MnCPUeinsehen");
    EXPECT_EQ(bench.viewer()->findChild<QPlainTextEdit*>()->toPlainText(),
              QStringLiteral("; 515\n"));
}

}  // namespace
}  // namespace korvex::gui
