// The disassembler from the workbench: dialog, new window, messages, options.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QProgressBar>
#include <QRadioButton>
#include <QTimer>

#include "base/cp1252.h"
#include "base/files.h"
#include "gui/disassembler_options_dialog.h"
#include "main_window_fixture.h"
#include "testing/process.h"

namespace korvex::gui {
namespace {

struct DisassemblyBench : Bench {
    DisassemblyBench() {
        writeWholeFile(folder.path() + "8032.cpu",
                       readWholeFile(std::string(KORVEX_DATA_DIR) + "/cpu/8032.cpu"));
    }
};

TEST(DisassemblyWindow, AHexFileOpensAsTheSameTextTheCommandLineToolPrints) {
    DisassemblyBench bench;
    const std::string hex =
        bench.folder.write("prog.h51", ":0700000074417580FE80FEB6\r\n:00000001FF\r\n");
    bench.dialogs.answers = {hex};
    bench.trigger("MnCompDisass");
    ASSERT_EQ(bench.dialogs.requests.size(), 1u);
    EXPECT_EQ(bench.dialogs.requests[0].title, text8("Hex/Binärdatei öffnen"));
    EXPECT_EQ(bench.dialogs.requests[0].filter,
              text8("Hexdateien (*.h51)|*.h51|Hexdateien (*.hex)|*.hex|Binärdateien (*.b51)|*.b51|"
                    "Alle Dateien (*.*)|*.*"));
    EXPECT_EQ(toCp1252(bench.caption()), "Disassembling " + bench.folder.path() + "prog.a51");
    EXPECT_EQ(bench.windows(), 2);
    EXPECT_TRUE(bench.window.findChild<QProgressBar*>(QStringLiteral("ProgressBar1"))->isHidden());

    const testing::ProcessResult tool =
        testing::runProcess(std::string(KORVEX_DISASM) + " --program-folder '" +
                            bench.folder.path() + "' '" + hex + "'");
    EXPECT_EQ(toCp1252(bench.text()->toPlainText()), fromUtf8(tool.output));
}

TEST(DisassemblyWindow, EmptyFilesAndCancelOpenNoWindow) {
    DisassemblyBench bench;
    const std::string empty = bench.folder.write("leer.b51", "");
    bench.dialogs.answers = {empty};
    bench.trigger("MnCompDisass");
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.host.boxes[0].text, empty + " : Leere Datei");
    bench.trigger("MnCompDisass");  // the dialog cancelled
    EXPECT_EQ(bench.windows(), 1);
}

TEST(DisassemblyWindow, AMissingDriverEndsTheRunBeforeTheDialog) {
    Bench bench;  // no driver in the program folder
    bench.trigger("MnCompDisass");
    EXPECT_TRUE(bench.dialogs.requests.empty());
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_EQ(bench.windows(), 1);
}

TEST(DisassemblyWindow, TheOptionsDialogChangesTheSwitchesAtOnce) {
    DisassemblerOptions options;
    DisassemblerOptionsDialog dialog(options, nullptr);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Disassembler Konfiguration"));
    dialog.findChild<QCheckBox*>(QStringLiteral("ChkAdresSort"))->click();
    EXPECT_TRUE(options.sortAddresses);
    auto* withLabels = dialog.findChild<QRadioButton*>(QStringLiteral("OptOhneLabel_0"));
    EXPECT_FALSE(withLabels->isChecked());
    withLabels->click();
    EXPECT_TRUE(options.withLabels);
    dialog.findChild<QRadioButton*>(QStringLiteral("OptOhneLabel_1"))->click();
    EXPECT_FALSE(options.withLabels);
}

}  // namespace
}  // namespace korvex::gui
