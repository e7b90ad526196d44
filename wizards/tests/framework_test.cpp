// The machinery every wizard shares: opening, the guard discipline, the
// repairs when a field is left, the commands, key filters on the fields, the
// failure trap, the transfer to the editor, the observer and the boxes.

#include <gtest/gtest.h>

#include <map>

#include "base/cp1252.h"
#include "base/failure.h"
#include "testing/scripted_host.h"
#include "wizard_fixture.h"
#include "wizards/wizard_factory.h"

namespace korvex::wizards::testing {
namespace {

using WizardCommands = WizardFixture;
using FieldRepairs = WizardFixture;
using Kind = ScriptedWizardHost::Kind;

TEST_F(WizardCommands, OpeningGivesTheLoadTimeSettingsOnceAndChangesGenerateOnce) {
    const auto generationsOf = [this](const std::function<void()>& action) {
        const int before = generations_;
        action();
        return generations_ - before;
    };
    EXPECT_EQ(generations_, 1);
    const auto& s = wizard_.settings();
    EXPECT_EQ(wizard_.tabNames().size(), 6u);
    EXPECT_EQ(wizard_.selectedTab(), 0);
    EXPECT_EQ(s.UCombo3.text, "2400");
    EXPECT_FALSE(s.UCombo4.visible);
    EXPECT_FALSE(s.UFrame1.enabled || s.UCombo1.enabled || s.UCheck3.enabled || s.UCheck4.enabled);
    EXPECT_EQ(s.T2Combo1.listIndex, 1);
    EXPECT_FALSE(s.T0Check3.visible);
    EXPECT_TRUE(wizard_.atRest() && wizard_.windowVisible() && host_.boxes.empty());

    // A second opening shows the window with the settings it has.
    wizard_.userSets("SText5", -1, "Test");
    wizard_.cancelWizard();
    EXPECT_FALSE(wizard_.windowVisible());
    EXPECT_EQ(generationsOf([&] { wizard_.openWizard(); }), 0);
    EXPECT_EQ(wizard_.settings().SText5.text, "Test");

    wizard_.userSets("SCheck1", -1, "1");
    EXPECT_EQ(generationsOf([&] { wizard_.userClicks("SCommand1"); }), 1);
    // The mirror of the run bits uses one code on both sides: the nested
    // operation finds its own code and releases the guard, so the program is
    // written twice.
    wizard_.userSets("T0Combo1", -1, "3");
    EXPECT_EQ(generationsOf([&] { wizard_.userSets("T0Check3", -1, "1"); }), 2);
    // Choosing mode 1 with Timer 1 busy changes five controls, one generation.
    wizard_.userSets("UCheck1", -1, "1");
    wizard_.userSets("T1Check0", -1, "1");
    EXPECT_EQ(generationsOf([&] { wizard_.userSets("UOption1", -1, "1"); }), 1);
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(WizardCommands, ResetTouchesOnlyStackRamLcallAndBank) {
    apply({"SText1=20", "SText5=Anlage", "SText2=40", "SCheck1=1", "SCheck2=1", "SCombo1=3"});
    click("SCommand1");
    EXPECT_EQ(s().SText2.text, "08");
    EXPECT_EQ(s().SCheck1.value + s().SCheck2.value + s().SCombo1.listIndex, 0);
    EXPECT_FALSE(s().SText3.enabled || s().SText4.enabled);
    EXPECT_EQ(s().SText1.text, "20");
    EXPECT_EQ(s().SText5.text, "Anlage");
}

// Timer 2's command is run by the programs' tests.
TEST_F(WizardCommands, FrequencyCommandsWriteTheReload) {
    // Timer 0 in mode 2: 1 Hz is too low and gives "00"; "1,5" reads as 1.
    apply({"T0Combo1=2", "T0Text2=12"});
    host_.inputs = {"1,5", "10000", "", "-5"};
    click("T0Command1");
    EXPECT_EQ(s().T0Text2.text, "00");
    click("T0Command1");
    EXPECT_EQ(s().T0Text2.text, "9C");
    EXPECT_EQ(host_.boxes.back().title, "Timer 0 Autorelaod");
    EXPECT_EQ(toUtf8(host_.boxes.back().text),
              "Geben Sie die gewünschte Frequenz in Hz ein.\r\n"
              "Verwenden Sie als Dezimaltrennzeichen den Punkt.");
    // Cancel (empty text) or a non-positive answer change nothing.
    click("T0Command1");
    click("T0Command1");
    EXPECT_EQ(s().T0Text2.text, "9C");

    // Timer 2 at 12 MHz: 10000 Hz is q = 100, R = 65436; as baud-rate generator it divides by 32.
    set("T2Check0", "1");
    host_.inputs = {"10000"};
    click("T2Command1");
    EXPECT_EQ(host_.boxes.back().title, "Timer 2 Autorelaod");
    EXPECT_EQ(s().T2Text5.text + s().T2Text4.text, "FF9C");
    set("T2Combo1", "8");
    host_.inputs = {"9600"};
    click("T2Command1");
    EXPECT_EQ(s().T2Text5.text + s().T2Text4.text, "FFD9");

    // A frequency so small that the 16-bit reload overflows 32 bits.
    host_.inputs = {"0.000001"};
    click("T2Command1");
    EXPECT_EQ(boxTexts(Kind::Failure),
              std::vector<std::string>{"Fehler Nummer6 wurde ausgelöst von Korvex\r\n"
                                       "Überlauf: Überprüfen Sie Ihre Eingaben."});
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(FieldRepairs, RepairsWhenAFieldIsLeft) {
    // An emptied clock keeps the old program until the field is left.
    set("SText1", "20");
    const std::string before = program();
    wizard_.userSets("SText1", -1, "");
    EXPECT_EQ(program(), before);
    wizard_.userLeaves("SText1");
    EXPECT_EQ(s().SText1.text, "12");
    set("SText1", "0");
    EXPECT_EQ(s().SText1.text, "12");

    apply({"SCheck1=1", "SText3=FF"});
    EXPECT_EQ(s().SText3.text, "FE");
    set("SText3", "00");
    EXPECT_EQ(s().SText3.text, "01");
    apply({"SText3=10", "SText4=00"});
    EXPECT_EQ(s().SText4.text, "11");
    set("SText2", "");
    EXPECT_EQ(s().SText2.text, "0");
    set("T2Check0", "1");
    for (TextBox* box : {&s().T0Text1, &s().T0Text2, &s().T2Text3}) {
        set(box->name, "");
        EXPECT_EQ(box->text, "00") << box->name;
    }
    apply({"UCheck1=1", "UOption1=1", "UCombo3=0"});
    EXPECT_EQ(s().UCombo3.text, "300");
    EXPECT_EQ(s().UCombo3.listIndex, 1);
}

TEST_F(FieldRepairs, ClockThatIsNoNumberShowsTheFailureBox) {
    const std::string before = program();
    wizard_.userSets("SText1", -1, "1x");
    EXPECT_EQ(program(), before);
    EXPECT_EQ(boxTexts(Kind::Failure),
              std::vector<std::string>{"Fehler Nummer13 wurde ausgelöst von Korvex\r\n"
                                       "Typen unverträglich: Überprüfen Sie Ihre Eingaben."});
    // Elsewhere the generator has no trap: the failure ends that generation.
    EXPECT_THROW(set("SCheck2", "1"), RuntimeFailure);
    EXPECT_TRUE(wizard_.atRest());
}

TEST_F(FieldRepairs, KeysAndActionsThatTheControlsCannotTake) {
    EXPECT_EQ(wizard_.userPresses("SText2", -1, 'a', 0), 0);  // "08" is full
    EXPECT_EQ(wizard_.userPresses("SText2", -1, 'a', 2), 'A');
    EXPECT_EQ(wizard_.userPresses("T2Text4", -1, 'x', 2), 0);
    EXPECT_EQ(wizard_.userPresses("UCombo3", -1, '.', 0), 0);
    EXPECT_EQ(wizard_.userPresses("SText1", -1, '.', 0), ',');
    EXPECT_EQ(wizard_.userPresses("SText5", -1, '.', 0), '.');  // free text

    EXPECT_THROW(set("SCheck1", "2"), ControlUseError);
    EXPECT_THROW(set("UCheck3", "1"), ControlUseError);     // disabled in mode 0
    EXPECT_THROW(set("T0Text3", "x"), ControlUseError);     // an output field
    EXPECT_THROW(set("UCombo4", "9600"), ControlUseError);  // hidden
    EXPECT_THROW(click("T1Command1"), ControlUseError);
    try {
        set("Nichts", "1");
        ADD_FAILURE();
    } catch (const ControlUseError& e) {
        EXPECT_TRUE(e.unknown());
    }
}

class FakeEditor : public EditorAccess {
  public:
    std::int16_t activeDocument() override { return active; }
    void setSelectionStart(std::int16_t, std::int32_t position) override {
        selectionStarts.push_back(position);
    }
    std::string text(std::int16_t document) override {
        if (closed) raise(FailureNumber::IndexOutOfRange);
        return texts.at(static_cast<std::size_t>(document));
    }
    void setText(std::int16_t document, const std::string& text) override {
        texts.at(static_cast<std::size_t>(document)) = text;
    }
    void recolour(std::int16_t document) override { recoloured.push_back(document); }

    std::int16_t active = 0;
    bool closed = false;
    std::vector<std::string> texts{"", "nop\r\n"};
    std::vector<std::int32_t> selectionStarts;
    std::vector<std::int16_t> recoloured;
};

TEST_F(WizardCommands, TransferPutsTheColouredProgramInFrontOfTheActiveDocument) {
    FakeEditor editor;
    wizard_.transferToEditor(editor);  // no window: nothing at all
    EXPECT_TRUE(wizard_.windowVisible());
    EXPECT_EQ(editor.texts[1], "nop\r\n");

    editor.active = 1;
    wizard_.transferToEditor(editor);
    EXPECT_FALSE(wizard_.windowVisible());
    EXPECT_EQ(editor.texts[1], program() + "nop\r\n");
    EXPECT_EQ(editor.selectionStarts, (std::vector<std::int32_t>{0, 0}));
    EXPECT_EQ(editor.recoloured, std::vector<std::int16_t>{1});

    wizard_.openWizard();
    editor.closed = true;
    wizard_.transferToEditor(editor);
    EXPECT_TRUE(wizard_.windowVisible());
    EXPECT_EQ(boxTexts(Kind::Note),
              std::vector<std::string>{"Problem: Ich weiß nicht wohin mit den Daten. Markieren Sie "
                                       "das Zielfenster und klicken Sie erneut auf übernehmen."});

    // Comments run to and with the line end.
    const auto& ranges = wizard_.previewColouring();
    ASSERT_GE(ranges.size(), 2u);
    EXPECT_EQ(program().substr(ranges[1].start, ranges[1].length),
              std::string("; ") + kFixedDate + "\r\n");
}

// A wizard whose code binds a handler to a control its record lacks.
class MisboundWizard : public Wizard {
  public:
    explicit MisboundWizard(WizardHost& host) : Wizard(host, {}) {
        onChange("SText9", [](int) {});
    }
    std::string windowTitle() const override { return {}; }
    std::vector<std::string> tabNames() const override { return {}; }
    void regenerateProgram() override {}

  protected:
    void loadSettings() override {}
};

TEST(WizardFactory, ChipsHaveTheirWizardAndATypoInABindingFailsAtOnce) {
    ScriptedWizardHost host;
    for (const std::string& chip : wizardChips()) EXPECT_NE(makeWizard(chip, host, {}), nullptr);
    EXPECT_EQ(makeWizard("52", host, {})->windowTitle(), "Assistent 80C52 / 80C32");
    EXPECT_EQ(makeWizard("8051x", host, {}), nullptr);
    EXPECT_THROW(MisboundWizard{host}, std::logic_error);
}

// A dialog hears of exactly the controls an action changed, and of the
// program only when its text changed.
TEST_F(WizardCommands, ObserverHearsWhatTheActionChangedAndNothingElse) {
    struct Recorder : WizardObserver {
        std::vector<std::vector<ControlChange>> changes;
        std::vector<std::string> previews;
        void controlsChanged(const std::vector<ControlChange>& c) override { changes.push_back(c); }
        void previewChanged(const std::string& text) override { previews.push_back(text); }
    } recorder;
    apply({"T1Check0=1", "T1Check2=1"});
    wizard_.setObserver(&recorder);

    set("T1Combo1", "3");  // mode 3 stops both run bits and locks one of them
    ASSERT_EQ(recorder.changes.size(), 1u);
    std::map<std::string, std::uint8_t> changed;
    for (const ControlChange& change : recorder.changes[0]) changed[change.key] = change.aspects;
    EXPECT_EQ(changed,
              (std::map<std::string, std::uint8_t>{{"T1Combo1", AspectValue},
                                                   {"T1Check2", AspectValue | AspectEnabled},
                                                   {"T0Check3", AspectValue},
                                                   {"T1Command1", AspectEnabled},
                                                   {"T1Text3", AspectValue}}));
    EXPECT_EQ(recorder.previews, std::vector<std::string>{program()});

    set("T1Combo1", "3");  // the same again: nothing to tell
    EXPECT_EQ(recorder.changes.size(), 1u);
    EXPECT_EQ(recorder.previews.size(), 1u);
}

// The workbench's boxes for a wizard: a question is a Yes/No box with the
// warning sign and Yes means yes; notes and failures are plain boxes without
// a title; the input box is the shell's function, and without one Cancel.
TEST(HostWizardHost, PutsQuestionsNotesAndInputsOnTheHost) {
    ScriptedHost host({MessageAnswer::Yes, MessageAnswer::No});
    std::vector<std::string> prompted;
    HostWizardHost boxes(
        host, [&](const std::string& title, const std::string& text, const std::string& answer) {
            prompted = {title, text, answer};
            return std::string("11,0592");
        });
    EXPECT_TRUE(boxes.question("Konflikt", "Aufheben?"));
    EXPECT_FALSE(boxes.question("Konflikt", "Aufheben?"));
    boxes.note("Hinweis");
    boxes.failure("Fehler Nummer 6");
    ASSERT_EQ(host.boxes.size(), 4u);
    EXPECT_EQ(host.boxes[0].title, "Konflikt");
    EXPECT_EQ(host.boxes[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(host.boxes[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(host.boxes[3].title + host.boxes[3].text, "Fehler Nummer 6");
    EXPECT_EQ(host.boxes[3].icon, MessageIcon::None);
    EXPECT_EQ(boxes.prompt("Frequenz", "Quarz in MHz", "12"), "11,0592");
    EXPECT_EQ(prompted, (std::vector<std::string>{"Frequenz", "Quarz in MHz", "12"}));
    EXPECT_EQ(HostWizardHost(host, nullptr).prompt("Frequenz", "Quarz in MHz", "12"), "");
}

}  // namespace
}  // namespace korvex::wizards::testing
