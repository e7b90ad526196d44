// The source window on large documents: opening a file (text in, comments
// coloured, laid out, ready for typing) and one keystroke in its middle.
// Runs on Qt's offscreen platform unless told otherwise.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <memory>
#include <string>

#include "gui/editor_window.h"
#include "workbench/settings.h"

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

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
