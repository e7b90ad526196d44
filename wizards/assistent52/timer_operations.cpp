// Change operations of the tabs "Timer 0", "Timer 1" and "Timer 2".

#include <cmath>

#include "base/cp1252.h"
#include "wizards/assistent52/assistent52.h"
#include "wizards/core/timer_arithmetic.h"

namespace korvex::wizards::assistent52 {
namespace {

std::string frequencyPrompt() {
    return text8(
        "Geben Sie die gewünschte Frequenz in Hz ein.\r\n"
        "Verwenden Sie als Dezimaltrennzeichen den Punkt.");
}

void syncListText(ComboBox& list) {
    if (list.listIndex >= 0 && static_cast<std::size_t>(list.listIndex) < list.items.size()) {
        list.text = list.items[static_cast<std::size_t>(list.listIndex)];
    }
}

}  // namespace

void Assistent52::T0Combo1Click() {
    s_.T0Label2.caption = "Timer 0 Lowbyte";
    s_.T0Label3.caption = "Timer 0 Highbyte";
    s_.T0Check3.visible = false;
    s_.T0Command1.enabled = false;
    const int mode = s_.T0Combo1.listIndex;
    if (mode == 2) {
        s_.T0Label2.caption = "Timer 0";
        s_.T0Label3.caption = "Reloadwert";
        s_.T0Command1.enabled = s_.T0Option1.selected == 0;
    }
    if (mode == 3) {
        if (s_.T1Check0.value != 0) {
            host_.note(text8(
                "Beachten Sie:\r\n"
                "Timer 1 wird bereits für andere Zwecke verwendet. Sie erzeugen in Modus 3 mit dem "
                "High-Byte des Timer 0 einen neuen Timer 1.\r\n"
                "Der Timer 1 Interrupt wird durch Überlauf des High-Bytes von Timer 0 ausgelöst "
                "und "
                "steht für den eigentlichen Timer 1 nicht mehr zur Verfügung.\r\n"
                "Das Bit TR1 startet das Hygh-Byte von Timer 0 und den eigentlichen Timer 1.\r\n"
                "Timer 1 kann nur durch Versetzen in den Modus 3 gestoppt werden."));
        }
        s_.T0Label2.caption = "Timer 0";
        s_.T0Label3.caption = "Timer 1";
        s_.T0Check3.visible = true;
    }
    regenerateProgram();
}

void Assistent52::T1Combo1Click() {
    s_.T1Label2.caption = "Timer 1 Lowbyte";
    s_.T1Label3.caption = "Timer 1 Highbyte";
    s_.T1Command1.enabled = false;
    const int mode = s_.T1Combo1.listIndex;
    if (mode == 2) {
        s_.T1Label2.caption = "Timer 1";
        s_.T1Label3.caption = "Reloadwert";
        s_.T1Command1.enabled = s_.T1Option1.selected == 0;
    }
    s_.T1Check2.enabled = s_.T1Check0.value != 0 && mode != 3;
    if (mode == 3 && s_.T0Combo1.listIndex < 3) {
        GuardHold hold(generationGuard_, guard_code::kTimer1Mode);
        setCheck(s_.T1Check2, 0);
        setCheck(s_.T0Check3, 0);
    }
    regenerateProgram();
}

void Assistent52::TimerOptionClick(const TimerControls& timer) {
    const std::string w = text8(timer.source.selected == 1 ? "Zähler" : "Timer");
    const std::string n = std::to_string(timer.number);
    timer.gate.caption = text8("Gate Control. High-Pegel an INT") + n + ": " + w + " " + n +
                         text8(" läuft, Low-Pegel an INT") + n + ": " + w + " " + n + " steht.";
    timer.mode.items[0] = "Modus 0, 13-Bit " + w;
    timer.mode.items[1] = "Modus 1, 16-Bit " + w;
    timer.mode.items[2] = "Modus 2, 8-Bit Autoreload " + w;
    if (timer.number == 1) timer.mode.items[3] = "Modus 3, " + w + " 1 steht.";
    syncListText(timer.mode);
    if (timer.mode.listIndex == 2) timer.frequency.enabled = timer.source.selected == 0;
    regenerateProgram();
}

void Assistent52::T0Check3Click() {
    GuardHold hold(generationGuard_, guard_code::kRunBitMirror);
    setCheck(s_.T1Check2, s_.T0Check3.value);
    hold.release();
    regenerateProgram();
}

void Assistent52::T1Check2Click() {
    GuardHold hold(generationGuard_, guard_code::kRunBitMirror);
    setCheck(s_.T0Check3, s_.T1Check2.value);
    hold.release();
    regenerateProgram();
}

void Assistent52::T1Check0Click() {
    if (revertPending_ != 0) {
        revertPending_ = 0;
        return;
    }
    const bool on = s_.T1Check0.value != 0;
    if (on && timer1TimesSerialPort()) {
        if (!host_.question("Konflikt",
                            text8("Timer 1 wird bereits als Baudratengenerator "
                                  "verwendet. Möchten Sie diese Zuordnung aufheben?"))) {
            revertPending_ = 1;
            setCheck(s_.T1Check0, 0);
            return;
        }
        GuardHold hold(generationGuard_, guard_code::kConflictAnswer);
        freeTimer1FromSerialPort();
    }
    if (s_.T0Combo1.listIndex == 3 && on) {
        host_.note(text8(
            "Beachten Sie:\r\n"
            "Für Timer 0 ist Modus 3 gewählt. In diesem Modus übernimmt das High-Byte des Timer 0 "
            "die Timer 1 Funktion.\r\n"
            "D.h. der Timer 1 Interrupt wird durch das High-Byte des Timer 0 ausgelöst.\r\n"
            "Das High-Byte des Timer 0 und der eigentliche Timer 1 werden durch dasselbe Bit TR1 "
            "gestartet.\r\n"
            "Timer 1 muss in den Modus 3 versetzt werden, damit er stoppt (wenn TR1 = 1).\r\n"
            "Timer 1 kann als Baudratengenerator verwendet werden, vorausgesetzt TR1 = 1."));
    }
    for (Control* c : std::initializer_list<Control*>{&s_.T1Frame1, &s_.T1Combo1, &s_.T1Text1,
                                                      &s_.T1Text2, &s_.T1Check2, &s_.T1Command1}) {
        c->enabled = on;
    }
    if (!on && s_.UCheck1.value == 1 && generationGuard_.idle()) {
        GuardHold hold(generationGuard_, guard_code::kNestedSerialCheck);
        UCheck1Click();
    }
    if (!on) timer1Released();
    regenerateProgram();
}

void Assistent52::T2Check0Click() {
    if (revertPending_ != 0) {
        revertPending_ = 0;
        return;
    }
    const bool on = s_.T2Check0.value != 0;
    if (on && s_.UCombo1.enabled && (s_.UCombo1.listIndex == 1 || s_.UCombo2.listIndex == 1)) {
        if (!host_.question("Konflikt", text8("Timer 2 wird bereits als Baudratengenerator "
                                              "verwendet.\r\nMöchten Sie diese Zuordnung "
                                              "aufheben?"))) {
            revertPending_ = 1;
            setCheck(s_.T2Check0, 0);
            return;
        }
        GuardHold hold(generationGuard_, guard_code::kConflictAnswer);
        setCheck(s_.UCheck1, 0);
    }
    for (Control* c :
         std::initializer_list<Control*>{&s_.T2Text2, &s_.T2Text3, &s_.T2Text4, &s_.T2Text5,
                                         &s_.T2Combo1, &s_.T2Command1, &s_.T2Frame1}) {
        c->enabled = on;
    }
    if (on) {
        GuardHold hold(generationGuard_, guard_code::kLoad);
        T2Combo1Click();
    } else {
        s_.T2Check1.visible = true;
    }
    if (!on && s_.UCheck1.value == 1) {
        // Both passes of the serial rules run, now that Timer 2 is free again.
        GuardHold hold(generationGuard_, guard_code::kTimer2Use);
        setCheck(s_.UCheck1, 0);
        setCheck(s_.UCheck1, 1);
    }
    regenerateProgram();
}

void Assistent52::T2Combo1Click() {
    s_.T2Command1.enabled = false;
    s_.T2Check1.visible = false;
    s_.T2Frame1.visible = false;
    s_.T2Text4.enabled = s_.T2Text5.enabled = true;
    switch (selectedTimer2Function()) {
        case T2TimerReload:
        case T2TimerReloadTrigger:
        case T2UpDownTimer: s_.T2Command1.enabled = true; break;
        case T2TimerCapture:
        case T2CounterCapture: s_.T2Text4.enabled = s_.T2Text5.enabled = false; break;
        case T2BaudOscillator:
        case T2BaudOscillatorOutput:
            s_.T2Command1.enabled = true;
            s_.T2Check1.visible = s_.T2Frame1.visible = true;
            break;
        case T2BaudExternal: s_.T2Check1.visible = s_.T2Frame1.visible = true; break;
        case T2ClockOutput:
            s_.T2Command1.enabled = true;
            s_.T2Check1.visible = true;
            break;
        default: break;
    }
    regenerateProgram();
}

void Assistent52::TimerCommandClick(const TimerControls& timer) {
    withArithmeticTrap([this, &timer] {
        const std::string title = "Timer " + std::to_string(timer.number) + " Autorelaod";
        const double frequency = valNumber(host_.prompt(title, frequencyPrompt(), "10000"));
        if (frequency <= 0) return;
        const float megahertz = clockMegahertz();
        if (megahertz <= 0) return;
        setText(timer.high, hex2(timer01ReloadForFrequency(effectiveMegahertz(), frequency,
                                                           timerCycleDivider(timer.number))));
    });
}

void Assistent52::T2Command1Click() {
    withArithmeticTrap([this] {
        const double frequency =
            valNumber(host_.prompt("Timer 2 Autorelaod", frequencyPrompt(), "10000"));
        if (frequency <= 0) return;
        const float megahertz = clockMegahertz();
        if (megahertz <= 0) return;
        const int function = selectedTimer2Function();
        const std::int32_t reload = timer2ReloadForFrequency(
            oscillatorHz(effectiveMegahertz()), frequency,
            function == T2BaudOscillator || function == T2BaudOscillatorOutput
                ? Timer2ReloadDivider::Baud
            : function == T2ClockOutput ? Timer2ReloadDivider::ClockOutput
                                        : Timer2ReloadDivider::Timer);
        GuardHold hold(generationGuard_, guard_code::kTimer2Frequency);
        setText(s_.T2Text5, hex2(static_cast<std::int64_t>(std::floor(reload / 256.0))));
        setText(s_.T2Text4, hex2(reload % 256));
        hold.release();
        regenerateProgram();
    });
}

}  // namespace korvex::wizards::assistent52
