// The workbench on large documents: opening a file in a source window (text
// in, comments coloured, laid out, ready for typing), one keystroke at three
// places in it, compiling it from the window with the report shown, replace
// all in it, a large binary file in the grid viewer, and a change in each
// wizard window until its preview shows the new program.
// Runs on Qt's offscreen platform unless told otherwise.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCheckBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "base/files.h"
#include "base/program_folder.h"
#include "gui/byte_grid_window.h"
#include "gui/compile_dialog.h"
#include "gui/editor_window.h"
#include "gui/main_window.h"
#include "gui/wizard_preview.h"
#include "gui/wizard_window.h"
#include "wizards/wizard_factory.h"
#include "workbench/byte_grid.h"
#include "workbench/file_comparison.h"
#include "workbench/find_replace.h"
#include "workbench/settings.h"
#include "workbench/user_settings_store.h"

namespace {

// Assembler lines with a comment on every one, as a commented program has them.
std::string commentedSource(int lines) {
    std::string text;
    text.reserve(static_cast<std::size_t>(lines) * 40);
    for (int i = 0; i < lines; ++i) {
        if (i % 8 == 0) {
            text += "Marke" + std::to_string(i) + ":\t\t; Einsprung " + std::to_string(i) + "\r\n";
        } else {
            text += "\tmov a,#" + std::to_string(i % 256) + "\t; Wert laden\r\n";
        }
    }
    return text;
}

struct Window {
    explicit Window(const korvex::Settings& settings)
        : editor(std::make_unique<korvex::gui::EditorWindow>(flags, settings)) {
        editor->resize(800, 600);
        editor->show();
    }
    korvex::EditorFlags flags;
    std::unique_ptr<korvex::gui::EditorWindow> editor;
};

void settle() {
    QCoreApplication::processEvents();
}

void BM_OpenCommentedSource(benchmark::State& state) {
    const std::string text = commentedSource(static_cast<int>(state.range(0)));
    const korvex::Settings settings = korvex::defaultSettings("/tmp/");
    for (auto _ : state) {
        Window window(settings);
        window.editor->setSourceText(text);
        settle();
        benchmark::DoNotOptimize(window.editor->caretLine());
        state.PauseTiming();
        window.editor.reset();
        settle();
        state.ResumeTiming();
    }
    state.counters["Zeilen"] = static_cast<double>(state.range(0));
}
BENCHMARK(BM_OpenCommentedSource)
    ->Arg(4000)
    ->Arg(8000)
    ->Arg(16000)
    ->Arg(32000)
    ->Unit(benchmark::kMillisecond);

void BM_KeystrokeInLargeSource(benchmark::State& state) {
    const std::string text = commentedSource(32000);
    const korvex::Settings settings = korvex::defaultSettings("/tmp/");
    Window window(settings);
    window.editor->setSourceText(text);
    settle();
    QTextEdit* edit = window.editor->textEdit();
    QTextCursor line(edit->document()->findBlockByNumber(static_cast<int>(state.range(0))));
    line.movePosition(QTextCursor::EndOfWord);
    edit->setTextCursor(line);
    edit->setFocus();
    settle();
    int typed = 0;
    for (auto _ : state) {
        QTest::keyClick(edit, typed % 2 == 0 ? Qt::Key_X : Qt::Key_Backspace);
        settle();
        ++typed;
    }
}
// At the top, in the middle and at the end of the document: the widget moves
// the lines below an edit, so the top costs most.
BENCHMARK(BM_KeystrokeInLargeSource)->Arg(1)->Arg(16001)->Arg(31999)->Unit(benchmark::kMillisecond);

// Replace all in a source window: every "mov" of 32,000 lines (28,000 hits)
// becomes "MOVX", with the message box answered at once.
void BM_ReplaceAllInLargeSource(benchmark::State& state) {
    const std::string text = commentedSource(32000);
    const korvex::Settings settings = korvex::defaultSettings("/tmp/");
    double undoSeconds = 0;
    for (auto _ : state) {
        state.PauseTiming();
        Window window(settings);
        window.editor->setSourceText(text);
        settle();
        korvex::QuietHost host;
        korvex::FindState find;
        korvex::FindReplace replace(find, window.flags, host);
        korvex::FindBoxes boxes;
        boxes.findText = "mov";
        boxes.replaceText = "MOVX";
        state.ResumeTiming();
        const int count = replace.ReplaceAll(window.editor->textControl(), boxes);
        settle();
        state.PauseTiming();
        if (count != 28000) state.SkipWithError("Falsche Anzahl Ersetzungen.");
        // Its undo gives back the text exactly.
        const auto undoStart = std::chrono::steady_clock::now();
        replace.UndoReplaceAll(window.editor->textControl());
        settle();
        undoSeconds +=
            std::chrono::duration<double>(std::chrono::steady_clock::now() - undoStart).count();
        if (window.editor->sourceText() != text) state.SkipWithError("Undo stellt nicht her.");
        window.editor.reset();
        settle();
        state.ResumeTiming();
    }
    state.counters["Undo_ms"] =
        benchmark::Counter(undoSeconds * 1000 / static_cast<double>(state.iterations()));
}
BENCHMARK(BM_ReplaceAllInLargeSource)->Unit(benchmark::kMillisecond);

// 300,000 bytes as Intel-HEX: 16-byte data records from address 0 (the
// addresses wrap at 64 KB, as four hex digits do), and the end record.
std::string hexFileOf(const std::string& bytes) {
    std::string text;
    text.reserve(bytes.size() * 2 + bytes.size() / 16 * 13);
    char line[64];
    for (std::size_t at = 0; at < bytes.size(); at += 16) {
        const std::size_t count = std::min<std::size_t>(16, bytes.size() - at);
        unsigned sum = static_cast<unsigned>(count) + ((at >> 8) & 0xFF) + (at & 0xFF);
        std::snprintf(line, sizeof line, ":%02zX%04zX00", count, at & 0xFFFF);
        text += line;
        for (std::size_t i = 0; i < count; ++i) {
            const auto byte = static_cast<unsigned char>(bytes[at + i]);
            sum += byte;
            std::snprintf(line, sizeof line, "%02X", byte);
            text += line;
        }
        std::snprintf(line, sizeof line, "%02X\r\n", (0x100 - (sum & 0xFF)) & 0xFF);
        text += line;
    }
    return text + ":00000001FF\r\n";
}

std::string largeBinary() {
    std::string bytes(300000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7);
    return bytes;
}

// A binary file of 300,000 bytes into the grid viewer, shown.
void BM_OpenBinaryFileInTheGrid(benchmark::State& state) {
    const std::string bytes = largeBinary();
    for (auto _ : state) {
        korvex::gui::ByteGridWindow window(korvex::gui::ByteGridWindow::Kind::Binary,
                                           korvex::binaryGrid(bytes), 0xC0C0C0, 0xFFFFFF);
        window.resize(900, 600);
        window.show();
        settle();
        state.PauseTiming();
        window.hide();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_OpenBinaryFileInTheGrid)->Unit(benchmark::kMillisecond);

// The hex file of those 300,000 bytes into the hex viewer, shown.
void BM_OpenHexFileInTheGrid(benchmark::State& state) {
    const std::string hex = hexFileOf(largeBinary());
    for (auto _ : state) {
        korvex::ByteGrid grid;
        korvex::readHexGrid(hex, grid);
        korvex::gui::ByteGridWindow window(korvex::gui::ByteGridWindow::Kind::Hex, std::move(grid),
                                           0xC0C0C0, 0xFFFFFF);
        window.resize(900, 600);
        window.show();
        settle();
        state.PauseTiming();
        window.hide();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_OpenHexFileInTheGrid)->Unit(benchmark::kMillisecond);

// Comparing: the hex file of the 300,000 bytes expanded (its addresses wrap
// at 64 KB) against the binary, and the binary against an equal copy, which
// walks all 300,000 bytes.
void BM_CompareLargeFiles(benchmark::State& state) {
    const std::string bytes = largeBinary();
    const std::string hex = hexFileOf(bytes);
    const std::string copy = bytes;
    for (auto _ : state) {
        const std::string image = korvex::LoadForCompare(hex, true, 0xFF);
        benchmark::DoNotOptimize(korvex::CompareBytes(image, bytes, 100));
        benchmark::DoNotOptimize(korvex::CompareBytes(bytes, copy, 100));
    }
}
BENCHMARK(BM_CompareLargeFiles)->Unit(benchmark::kMillisecond);

// The file dialog always names the one prepared source.
struct OneFile : korvex::FileDialogs {
    std::string openFileName(const korvex::FileDialogRequest&) override { return path; }
    std::string saveFileName(const korvex::FileDialogRequest&) override { return {}; }
    std::string path;
};

// F5 on an open 32,000-line source, Start, until the report stands in the
// dialog: the text goes to TmpFile.tmp, is assembled with hex and listing
// written, and the report is coloured.
void BM_CompileLargeSourceFromTheWorkbench(benchmark::State& state) {
    const std::string folder = korvex::makePrivateTemporaryFolder();
    korvex::writeWholeFile(folder + "80C32.cpu",
                           korvex::readWholeFile(std::string(KORVEX_DATA_DIR) + "/cpu/80C32.cpu"));
    korvex::QuietHost host;
    OneFile dialogs;
    korvex::MemoryUserSettingsStore store;
    auto window = std::make_unique<korvex::gui::MainWindow>(
        folder, korvex::gui::MainWindowServices{host, dialogs, store});
    window->show();
    window->start("");
    dialogs.path = folder + "gross.a51";
    korvex::writeWholeFile(dialogs.path, "#cpu 80C32\r\n" + commentedSource(32000));
    window->runCommand(QStringLiteral("mnuFOpen"));
    settle();
    if (window->activeEditor() == nullptr) {
        state.SkipWithError("Die Quelle ist nicht geöffnet.");
        return;
    }
    QMdiSubWindow* source = window->area()->currentSubWindow();
    for (auto _ : state) {
        window->area()->setActiveSubWindow(source);
        window->runCommand(QStringLiteral("MnCompComp"));
        korvex::gui::CompileDialog* dialog = window->compileDialogIfLoaded();
        if (dialog == nullptr) {
            state.SkipWithError("Kein Compiler-Dialog.");
            break;
        }
        dialog->findChild<QPushButton*>(QStringLiteral("Command1"))->click();
        settle();
        benchmark::DoNotOptimize(dialog->reportControl().TextLength());
    }
    // The report must say that all of it was translated.
    const std::string report = window->compileDialogIfLoaded()->reportControl().Text();
    if (report.find("32001 Zeilen") == std::string::npos) state.SkipWithError(report.c_str());
    state.counters["Zeilen"] = 32000;
    window.reset();
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}
BENCHMARK(BM_CompileLargeSourceFromTheWorkbench)->Unit(benchmark::kMillisecond);

// One click in a wizard window until the preview shows the new program: the
// change operation, the widgets that follow the record, the preview's text
// and colours, and the repaint.
void BM_WizardFieldChangeToPreview(benchmark::State& state) {
    const std::string chip =
        korvex::wizards::wizardChips()[static_cast<std::size_t>(state.range(0))];
    state.SetLabel(chip);
    const std::string folder = korvex::makePrivateTemporaryFolder();
    korvex::QuietHost host;
    OneFile dialogs;
    korvex::MemoryUserSettingsStore store;
    auto window = std::make_unique<korvex::gui::MainWindow>(
        folder, korvex::gui::MainWindowServices{host, dialogs, store});
    window->show();
    window->start("");
    window->openWizard(chip);
    korvex::gui::WizardWindow* wizard = window->wizardWindow(chip);
    // Most units in use, so that the program is a long one.
    for (const char* field :
         {"SCheck1",    "UCheck1",    "UCheck3",    "T1Check0",    "T2Check0", "WCheck2",
          "WDCheck1",   "SPICheck1",  "ADCheck1",   "PWMCheck1",   "ICCheck1", "U1Check1",
          "BCheckTakt", "BList(0)",   "BList(8)",   "CaktivCheck", "MDU1",     "MDU4",
          "CTCheck1",   "ICheck1(1)", "ICheck1(3)", "ICheck1(4)"}) {
        const std::string key = field;
        const std::size_t open = key.find('(');
        const int index = open == std::string::npos ? -1 : std::stoi(key.substr(open + 1));
        try {
            wizard->wizard().userSets(key.substr(0, open), index, "1");
        } catch (const korvex::wizards::ControlUseError&) {
            // not a field of this chip, or not usable with the others set
        }
    }
    // LCALL or ACALL: every chip has the box, and it touches every call of the program.
    auto* box = qobject_cast<QCheckBox*>(wizard->control(QStringLiteral("SCheck2")));
    for (int tab = 0; tab < wizard->tabs()->count(); ++tab) {
        if (wizard->tabs()->widget(tab)->isAncestorOf(box)) wizard->tabs()->setCurrentIndex(tab);
    }
    settle();
    for (auto _ : state) {
        box->click();
        QApplication::processEvents();
        benchmark::DoNotOptimize(wizard->preview()->document()->characterCount());
    }
    state.counters["Zeichen"] = wizard->preview()->document()->characterCount();
    window.reset();
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}
BENCHMARK(BM_WizardFieldChangeToPreview)->DenseRange(0, 8)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
