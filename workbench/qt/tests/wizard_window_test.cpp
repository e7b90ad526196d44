// The nine wizard windows, driven as a user drives them: opened from the
// menu, fields typed, boxes clicked, lists chosen, questions answered; the
// program in the preview must be the one korvex-wizard writes for the same
// changes, byte for byte.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTabWidget>
#include <QTextBlock>

#include "gui/wizard_layout.h"
#include "gui/wizard_preview.h"
#include "gui/wizard_window.h"
#include "main_window_fixture.h"

namespace korvex::gui {
namespace {

constexpr const char* kDate = "25.11.2026 12:00:00";

struct WizardBench : Bench {
    WizardBench() {
        // The I²C routine of the 80C552 is read from the program folder.
        folder.write("c552iic.dat", testing::readFileBytes(KORVEX_DATA_DIR "/c552iic.dat"));
        window.setWizardClock([] { return std::string(kDate); });
        window.setPrompt([this](const std::string&, const std::string&, const std::string&) {
            if (inputs.empty()) return std::string();
            std::string input = inputs.front();
            inputs.pop_front();
            return input;
        });
    }

    WizardWindow* open(const char* command, const std::string& chip) {
        trigger(command);
        return window.wizardWindow(chip);
    }

    std::deque<std::string> inputs;
};

// Brings the tab of a widget to the front, as the user must before using it.
void showTabOf(WizardWindow& wizard, QWidget* widget) {
    QTabWidget* tabs = wizard.tabs();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        if (tabs->widget(tab)->isAncestorOf(widget)) tabs->setCurrentIndex(tab);
    }
}

// Key by key, umlauts too (QTest's own typing knows only ASCII).
void typeKeys(QWidget* widget, const QString& text) {
    for (const QChar c : text) {
        const int key =
            c.toUpper().unicode() < 128 ? int{c.toUpper().unicode()} : int{Qt::Key_unknown};
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(c));
        QApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(c));
        QApplication::sendEvent(widget, &release);
    }
}

void typeInto(QLineEdit* field, const QString& text) {
    field->setFocus();
    field->selectAll();
    typeKeys(field, text);
    QFocusEvent leave(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(field, &leave);
}

// One step in korvex-wizard's words: "FIELD=VALUE", "!BUTTON", "?ja"/"?nein", ">INPUT".
void apply(WizardBench& bench, WizardWindow& wizard, const std::string& step) {
    if (step[0] == '?') {
        bench.host.script(step == "?ja" ? MessageAnswer::Yes : MessageAnswer::No);
        return;
    }
    if (step[0] == '>') {
        bench.inputs.push_back(step.substr(1));
        return;
    }
    if (step[0] == '!') {
        QWidget* button = wizard.control(QString::fromStdString(step.substr(1)));
        ASSERT_NE(button, nullptr) << step;
        showTabOf(wizard, button);
        QTest::mouseClick(button, Qt::LeftButton);
        return;
    }
    const std::size_t equals = step.find('=');
    const QString key = QString::fromStdString(step.substr(0, equals));
    const QString value = QString::fromUtf8(step.substr(equals + 1));
    // An option group's value is one of its buttons.
    QWidget* widget = wizard.control(key + QStringLiteral("(%1)").arg(value));
    if (qobject_cast<QRadioButton*>(widget) == nullptr) widget = wizard.control(key);
    ASSERT_NE(widget, nullptr) << step;
    showTabOf(wizard, widget);
    ASSERT_TRUE(widget->isVisible() && widget->isEnabled()) << step;
    if (auto* field = qobject_cast<QLineEdit*>(widget)) {
        typeInto(field, value);
    } else if (auto* check = qobject_cast<QCheckBox*>(widget)) {
        if (check->isChecked() != (value == QLatin1String("1"))) {
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
        }
    } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
        if (list->isEditable()) {
            typeInto(list->lineEdit(), value);
        } else {
            list->setCurrentIndex(value.toInt());
            emit list->activated(value.toInt());  // what a choice in the open list sends
        }
    } else if (auto* slider = qobject_cast<QSlider*>(widget)) {
        slider->setValue(value.toInt());
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    } else {
        FAIL() << "no way to use " << step;
    }
}

std::string cliProgram(const std::string& chip, const std::vector<std::string>& steps,
                       const testing::ScratchFolder& folder) {
    std::string command = std::string(KORVEX_WIZARD) + " " + chip + " --date '" + kDate + "'";
    for (const std::string& step : steps) {
        if (step[0] == '?') {
            command += " --answer " + step.substr(1);
        } else if (step[0] == '>') {
            command += " --input '" + step.substr(1) + "'";
        } else if (step[0] == '!') {
            command += " --click " + step.substr(1);
        } else {
            command += " --set '" + step + "'";
        }
    }
    const std::string output = folder.path() + "cli.a51";
    const testing::ProcessResult run = testing::runProcess(command + " -o " + output + " 2>&1");
    EXPECT_EQ(run.exitCode, 0) << command << "\n" << run.output;
    return testing::readFileBytes(output);
}

struct Walk {
    const char* command;
    std::string chip;
    std::vector<std::string> steps;
};

void PrintTo(const Walk& walk, std::ostream* os) {
    *os << walk.chip;
}

class WizardWalk : public ::testing::TestWithParam<Walk> {};

TEST_P(WizardWalk, PreviewIsTheProgramOfTheCommandLine) {
    const Walk& walk = GetParam();
    WizardBench bench;
    WizardWindow* wizard = bench.open(walk.command, walk.chip);
    ASSERT_NE(wizard, nullptr);
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_EQ(toCp1252(wizard->windowTitle()), wizard->wizard().windowTitle());

    // Every control of the record has its widget, named after it, on a tab.
    for (const auto& [key, ref] : wizard->wizard().controls().all()) {
        EXPECT_NE(wizard->control(QString::fromLatin1(key.c_str())), nullptr) << key;
        const wizards::Control& control = wizards::baseOf(ref);
        if (control.name != "Command1" && control.name != "Command2") {
            EXPECT_GE(
                wizardTabOf(walk.chip, wizard->wizard().tabNames(), control.name, control.index), 0)
                << key;
        }
    }

    for (const std::string& step : walk.steps) {
        apply(bench, *wizard, step);
        ASSERT_FALSE(::testing::Test::HasFatalFailure()) << step;
        // The widgets follow the record after every change.
        for (const auto& [key, ref] : wizard->wizard().controls().all()) {
            const wizards::Control& control = wizards::baseOf(ref);
            QWidget* widget = wizard->control(QString::fromLatin1(key.c_str()));
            if (std::holds_alternative<wizards::Frame*>(ref)) continue;
            EXPECT_EQ(widget->isEnabledTo(widget->parentWidget()), control.enabled)
                << step << ": " << key;
            if (auto* const* check = std::get_if<wizards::CheckBox*>(&ref)) {
                EXPECT_EQ(static_cast<QCheckBox*>(widget)->isChecked(), (*check)->value != 0)
                    << step << ": " << key;
            }
        }
    }
    const std::string expected = cliProgram(walk.chip, walk.steps, bench.folder);
    EXPECT_EQ(wizard->wizard().previewText(), expected);
    std::string shown = expected;
    shown.erase(std::remove(shown.begin(), shown.end(), '\r'), shown.end());
    EXPECT_EQ(wizard->preview()->toPlainText(), fromCp1252(shown));
    // Each scripted answer went to one Yes/No question of the window.
    const auto questions =
        std::count_if(bench.host.boxes.begin(), bench.host.boxes.end(),
                      [](const auto& box) { return box.buttons == MessageButtons::YesNo; });
    const auto answers = std::count_if(walk.steps.begin(), walk.steps.end(),
                                       [](const std::string& step) { return step[0] == '?'; });
    EXPECT_EQ(questions, answers);
}

INSTANTIATE_TEST_SUITE_P(
    AllChips, WizardWalk,
    ::testing::Values(
        Walk{"MnAssist51",
             "51",
             {"SText1=11,0592", "UCheck1=1", "UOption1=1", "UCheck3=1", "UCombo1=9600",
              "T0Combo1=2", ">10000", "!T0Command1", "T0Check2=1", "ICheck1(1)=1", "ICheck0=1",
              "SText5=Förderband"}},
        Walk{"MnAssist51", "51", {"UCheck1=1", "UOption1=1", "?nein", "T1Check0=1", "T0Combo1=3"}},
        Walk{"MnAssist52",
             "52",
             {"SText2=30", "SCheck1=1", "SText3=20", "UCheck1=1", "UOption1=1", "UCombo1=1", "?ja",
              "T2Check0=1", "ICheck1(5)=1", "ICheck2(5)=1", "ICheck0=1"}},
        Walk{"MnAssistAT89",
             "89S53",
             {"SPICheck1=1", "SPICheck2=1", "SPIOption2=1", "WCheck2=1", "WCheck1(3)=1",
              "T2Check0=1", "T2Combo1=12"}},
        Walk{"MnAssist8253",
             "8253",
             {"BCheckTakt=1", "BList(0)=1", "BList(8)=1", "WCkStart=1", "IPSlider(1)=2",
              "ICheck1(1)=1", "ICheck1(6)=1", "UAdresse(0)=12"}},
        Walk{"MnAssist4052",
             "4052",
             {"PWM0Chkverwenden=1", "PWM0Slider=64", "CaktivCheck=1", "COption=2", "PortText(3)=1",
              "SPICheck1=1"}},
        Walk{"MnAssist320",
             "320",
             {"U1Check1=1", "U1Option1=1", "S2Check1(1)=1", "MCText2(0)=A5", "WCheck2=1",
              "ICheck3=1"}},
        Walk{"MnAssist515",
             "515",
             {"ADCheck1=1", "ADCombo1=3", "WDCheck1=1", "T2Check0=1", "CCCombo1(1)=2",
              "IPCombo1(2)=3", "SCheck0=1"}},
        Walk{"MnAssist517",
             "517",
             {"MDU1=1", "MDU5=1", "MDUText1=9", "U1Check1=1", "CMCheck1(0)=1", "CC4Combo1=1",
              "CTCheck1=1"}},
        Walk{"MnAssist552",
             "552",
             {"PWMCheck1=1", "PWMText1=10", "PWMSlider1=64", "ICCheck1=1", "ICSlider1=3",
              "ADCheck1=1", "WDCheck1=1", "WDText1=80", "T2Check0=1"}}));

TEST(WizardWindow, TransferPutsTheProgramInFrontOfTheActiveSourceColoured) {
    WizardBench bench;
    for (QMdiSubWindow* frame : bench.window.area()->subWindowList()) frame->close();
    Bench::settle();
    WizardWindow* wizard = bench.open("MnAssist52", "52");
    // Without a source window nothing happens and the wizard stays.
    QTest::mouseClick(wizard->control(QStringLiteral("Command2")), Qt::LeftButton);
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_TRUE(bench.host.boxes.empty());

    bench.trigger("mnuFNew");
    bench.window.activeEditor()->setSourceText("end\r\n");
    bench.window.activeEditor()->textEdit()->setFocus();
    QTest::keyClick(bench.window.activeEditor()->textEdit(), Qt::Key_End);  // becomes active
    wizard = bench.open("MnAssist52", "52");
    apply(bench, *wizard, "UCheck1=1");
    const std::string program = wizard->wizard().previewText();
    QTest::mouseClick(wizard->control(QStringLiteral("Command2")), Qt::LeftButton);
    EXPECT_FALSE(wizard->isVisible());
    EXPECT_EQ(bench.window.activeEditor()->sourceText(), program + "end\r\n");
    EXPECT_TRUE(bench.caption().endsWith(QLatin1String("*")) ||
                bench.window.documents().state(1).Dirty);
    // The header comment stands in the comment colour, the code in black.
    const QTextDocument* document = bench.text()->document();
    const QTextBlock header = document->firstBlock();
    const QColor comment = header.begin().fragment().charFormat().foreground().color();
    EXPECT_NE(comment, QColor(Qt::black));
    // The settings stay: the next opening shows them again.
    wizard = bench.open("MnAssist52", "52");
    EXPECT_TRUE(static_cast<QCheckBox*>(wizard->control(QStringLiteral("UCheck1")))->isChecked());
}

TEST(WizardWindow, HexFieldsFilterKeysAndRepairWhenLeft) {
    WizardBench bench;
    WizardWindow* wizard = bench.open("MnAssist52", "52");
    auto* low = static_cast<QLineEdit*>(wizard->control(QStringLiteral("T0Text1")));
    showTabOf(*wizard, low);
    low->setCursorPosition(2);
    QTest::keyClick(low, Qt::Key_A);  // two digits and nothing selected: dropped
    EXPECT_EQ(low->text(), QStringLiteral("00"));
    low->selectAll();
    typeKeys(low, QStringLiteral("a"));  // with a selection it arrives as a capital
    EXPECT_EQ(low->text(), QStringLiteral("A"));
    QTest::keyClick(low, Qt::Key_Backspace);
    QFocusEvent leave(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(low, &leave);
    EXPECT_EQ(low->text(), QStringLiteral("00"));  // an empty field becomes "00" on leaving
}

TEST(WizardWindow, PreviewKeepsItsPlaceWhenTheProgramChanges) {
    WizardBench bench;
    WizardWindow* wizard = bench.open("MnAssist8253", "8253");
    for (const char* step : {"BCheckTakt=1", "BList(0)=1", "BList(4)=1", "WCkStart=1"}) {
        apply(bench, *wizard, step);
    }
    wizard->resize(900, 400);
    QApplication::processEvents();
    QScrollBar* bar = wizard->preview()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    bar->setValue(bar->maximum() / 2);
    const int place = bar->value();
    apply(bench, *wizard, "SText5=Prüfstand");
    EXPECT_EQ(bar->value(), place);
    EXPECT_NE(wizard->preview()->toPlainText().indexOf(QStringLiteral("Prüfstand")), -1);
}

}  // namespace
}  // namespace korvex::gui
