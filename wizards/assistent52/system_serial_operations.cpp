// Change operations of the tabs "System" and "Serieller Port".

#include "base/cp1252.h"
#include "wizards/assistent52/assistent52.h"

namespace korvex::wizards::assistent52 {

void Assistent52::SText1Change() {
    withArithmeticTrap([this] {
        if (!s_.SText1.text.empty() && clockMegahertz() != 0) regenerateProgram();
    });
}

void Assistent52::SText1LostFocus() {
    withArithmeticTrap([this] {
        if (s_.SText1.text.empty() || clockMegahertz() == 0) setText(s_.SText1, "12");
        regenerateProgram();
    });
}

void Assistent52::SText2LostFocus() {
    if (s_.SText2.text.empty()) setText(s_.SText2, "0");
}

void Assistent52::SText3LostFocus() {
    const std::int32_t value = hexFieldValue(s_.SText3.text);
    if (value == 0) setText(s_.SText3, "01");
    if (value == 0xFF) setText(s_.SText3, "FE");
}

void Assistent52::SText4LostFocus() {
    const std::int32_t first = hexFieldValue(s_.SText3.text);
    if (hexFieldValue(s_.SText4.text) < first) setText(s_.SText4, hex2(first + 1));
}

void Assistent52::hexFieldLostFocus(TextBox& box) {
    if (box.text.empty()) setText(box, "00");
}

void Assistent52::SCheck1Click() {
    s_.SText3.enabled = s_.SText4.enabled = s_.SCheck1.value != 0;
    regenerateProgram();
}

void Assistent52::SCommand1Click() {
    GuardHold hold(generationGuard_, guard_code::kResetValues);
    setText(s_.SText2, "08");
    setCheck(s_.SCheck1, 0);
    setCheck(s_.SCheck2, 0);
    setListIndex(s_.SCombo1, 0);
    hold.release();
    regenerateProgram();
}

void Assistent52::UCheck1Click() {
    const bool on = s_.UCheck1.value != 0;
    s_.UFrame1.enabled = on;
    auto& modes = s_.UOption1.buttons;
    if (!on) {
        modes[1].enabled = modes[3].enabled = true;
        for (Control* c : std::initializer_list<Control*>{&s_.UCombo1, &s_.UCombo2, &s_.UCombo3,
                                                          &s_.UCombo4, &s_.UCheck3, &s_.UCheck4}) {
            c->enabled = false;
        }
        regenerateProgram();
        return;
    }
    const bool timer1Busy = s_.T1Check0.value != 0;
    const bool timer2Busy = s_.T2Check0.value != 0;
    if (timer1Busy && timer2Busy) {
        modes[1].enabled = modes[3].enabled = false;
        if (s_.UOption1.selected != 2) selectOption(s_.UOption1, 0);
        host_.note(
            text8("Die Modi 1 und 3 stehen nicht zur Verfügung, weil Timer 1 und Timer 2 "
                  "für andere Zwecke verwendet werden.\r\nGeben Sie einen dieser Timer frei."));
    } else if (timer1Busy || timer2Busy) {
        // The timer that is free becomes the baud generator of both directions.
        GuardHold hold(generationGuard_, guard_code::kSerialUse);
        const int generator = timer1Busy ? 1 : 0;
        setListIndex(s_.UCombo1, generator);
        setListIndex(s_.UCombo2, generator);
        modes[1].enabled = modes[3].enabled = true;
    }
    UOption1Click(s_.UOption1.selected);
}

void Assistent52::UOption1Click(int index) {
    GuardHold hold(generationGuard_, guard_code::kSerialMode);
    const bool needsGenerator = index % 2 == 1;
    for (ComboBox* list : {&s_.UCombo1, &s_.UCombo2, &s_.UCombo3, &s_.UCombo4}) {
        list->enabled = needsGenerator;
    }
    const auto onTimer = [this](int generator) {
        return s_.UCombo1.listIndex == generator || s_.UCombo2.listIndex == generator;
    };
    // Modes 1 and 3 take their timer away from other work without asking.
    if (needsGenerator && s_.T1Check0.value != 0 && onTimer(0)) {
        setCheck(s_.T1Check0, 0);
        setListIndex(s_.T1Combo1, 2);
        setCheck(s_.T1Check2, 1);
        setCheck(s_.T0Check3, 1);
    }
    if (needsGenerator && s_.T2Check0.value != 0 && onTimer(1)) {
        setCheck(s_.T2Check0, 0);
        setListIndex(s_.T2Combo1, timer2ListIndex(T2BaudOscillator));
        const int direction = 2 * s_.UCombo1.listIndex + s_.UCombo2.listIndex - 1;
        if (direction >= 0 && direction <= 2) selectOption(s_.T2Option1, direction);
    }
    if (index != 0) {
        s_.UCheck3.enabled = true;
        s_.UCheck4.enabled = onTimer(0) || index == 2;
    } else {
        s_.UCheck3.enabled = s_.UCheck4.enabled = false;
    }
    s_.UCheck2.enabled = index == 2 || index == 3;
    hold.release();
    regenerateProgram();
}

void Assistent52::UComboClick() {
    // A No puts both lists on the other timer. Their change events must not ask
    // again: with both timers busy, No to one question led to the other
    // question and back, without end (a stack overflow with unanswered
    // questions on the command line).
    const auto revertSerialGenerators = [this](int generator) {
        {
            GuardHold hold(generationGuard_, guard_code::kRevertSerialLists);
            setListIndex(s_.UCombo1, generator);
            setListIndex(s_.UCombo2, generator);
        }
        if (generationGuard_.idle()) regenerateProgram();
    };
    const auto onTimer = [this](int generator) {
        return s_.UCombo1.listIndex == generator || s_.UCombo2.listIndex == generator;
    };
    if (generationGuard_.idle()) {
        if (onTimer(0) && s_.T1Check0.value != 0) {
            if (!host_.question("Konflikt",
                                text8("Timer 1 wird bereits für andere Zwecke verwendet.\r\n Soll "
                                      "diese Verwendung aufgehoben werden und möchten Sie Timer 1 "
                                      "als Baudratengenerator benutzen?"))) {
                revertSerialGenerators(1);
                return;
            }
            GuardHold hold(generationGuard_, guard_code::kConflictAnswer);
            setCheck(s_.T1Check0, 0);
        }
        if (onTimer(1) && s_.T2Check0.value != 0) {
            if (!host_.question("Konflikt",
                                text8("Timer 2 wird bereits für andere Zwecke verwendet.\r\n Soll "
                                      "diese Verwendung aufgehoben werden und möchten Sie Timer 2 "
                                      "als Baudratengenerator benutzen?"))) {
                revertSerialGenerators(0);
                return;
            }
            GuardHold hold(generationGuard_, guard_code::kConflictAnswer);
            setCheck(s_.T2Check0, 0);
        }
    }
    const int receive = s_.UCombo1.listIndex;
    const int send = s_.UCombo2.listIndex;
    const bool different = receive != send;
    s_.UCombo4.visible = different;
    s_.UCombo3.width = different ? kBaudListNarrowWidth : kBaudListWideWidth;
    if (different) {
        s_.UCheck4.enabled = true;
        generationGuard_.take(guard_code::kConflictAnswer);
        setListIndex(s_.T2Combo1, timer2ListIndex(T2BaudOscillator));
        if (generationGuard_.value() == guard_code::kConflictAnswer) {
            selectOption(s_.T2Option1, receive == 1 ? 1 : 0);
        }
    } else if (receive == 0) {
        s_.UCheck4.enabled = true;
        if (selectedTimer2Function() == T2BaudOscillator) {
            setListIndex(s_.T2Combo1, timer2ListIndex(T2TimerReload));
            setText(s_.T2Text4, "00");
            setText(s_.T2Text5, "00");
        }
        s_.T2Check1.visible = true;
    } else {
        s_.UCheck4.enabled = false;
        setListIndex(s_.T2Combo1, timer2ListIndex(T2BaudOscillator));
        selectOption(s_.T2Option1, 2);
    }
    s_.T2Text4.enabled = s_.T2Text5.enabled = s_.T2Frame1.enabled = false;
    generationGuard_.release(guard_code::kConflictAnswer);
    if (generationGuard_.idle()) regenerateProgram();
}

void Assistent52::UComboLostFocus(ComboBox& list) {
    if (valNumber(list.text) <= 0) setListText(list, "300");
}

}  // namespace korvex::wizards::assistent52
