#include "gui/wizard_layout.h"

#include <algorithm>
#include <map>

#include "base/cp1252.h"

namespace korvex::gui {
namespace {

// A control goes to `tab` when its name begins with `prefix` (or is it, for
// an exact rule) and its index is at least `fromIndex`.
struct TabRule {
    std::string prefix;
    std::string tab;
    bool exact = false;
    int fromIndex = -1;
};

// What each chip adds to the base's prefixes S, U, T0, T1, T2 and I.
const std::map<std::string, std::vector<TabRule>>& chipRules() {
    static const std::map<std::string, std::vector<TabRule>> rules = {
        {"89S53", {{"W", "Watchdog"}, {"SPI", "SPI"}}},
        {"8253", {{"W", "Watchdog"}, {"SPI", "SPI"}, {"B", "Betriebssystem"}, {"A", "System"}}},
        {"4052",
         {{"SPI", "SPI"},
          {"PWM", "PWM"},
          {"Port", "Ports"},
          {"B", "Betriebssystem"},
          {"C", "Analogkomparator"}}},
        {"320",
         {{"S2", "System 2"},
          {"U1", "Serieller Port 1"},
          {"U", "Serieller Port 0"},
          {"MC", "Multicontroller"},
          {"W", "Watchdog"},
          {"ICheck1", "Interrupts 2", false, 7},
          {"ICheck2", "Interrupts 2", false, 7},
          {"ICheck3", "Interrupts 2", true}}},
        {"515", {{"AD", "A/D-Wandler"}, {"WD", "Watchdog"}, {"CC", "Timer 2"}}},
        {"517",
         {{"U1", "Serieller Port 1"},
          {"U", "Serieller Port 0"},
          {"AD", "A/D-Wandler"},
          {"WD", "Watchdog"},
          {"CC4", "CC4"},
          {"CC", "Timer 2"},
          {"CM", "CM"},
          {"CT", "CM"},
          {"MDU", "MDU"}}},
        {"552",
         {{"ICheck3", "I²C", true},
          // "ICCheck1", "ICSlider1", ...; not the interrupts' "ICheck1".
          {"ICC", "I²C"},
          {"ICS", "I²C"},
          {"ICL", "I²C"},
          {"ICT", "I²C"},
          {"PWM", "PWM"},
          {"AD", "A/D-Wandler"},
          {"WD", "Watchdog"},
          {"CM", "Timer 2"},
          {"CT", "Timer 2"},
          {"STE", "Timer 2"},
          {"RTE", "Timer 2"}}},
    };
    return rules;
}

const std::vector<TabRule>& baseRules() {
    static const std::vector<TabRule> rules = {{"T0", "Timer 0"},       {"T1", "Timer 1"},
                                               {"T2", "Timer 2"},       {"S", "System"},
                                               {"U", "Serieller Port"}, {"I", "Interrupts"}};
    return rules;
}

bool matches(const TabRule& rule, const std::string& name, int index) {
    if (index < rule.fromIndex) return false;
    return rule.exact ? name == rule.prefix : name.rfind(rule.prefix, 0) == 0;
}

}  // namespace

int wizardTabOf(const std::string& chip, const std::vector<std::string>& tabs,
                const std::string& name, int index) {
    if (name == "Command1" || name == "Command2") return -1;
    std::vector<TabRule> rules;
    if (const auto own = chipRules().find(chip); own != chipRules().end()) rules = own->second;
    rules.insert(rules.end(), baseRules().begin(), baseRules().end());
    // Exact names and index ranges first, then the longest prefix wins.
    std::stable_sort(rules.begin(), rules.end(), [](const TabRule& a, const TabRule& b) {
        const bool aNarrow = a.exact || a.fromIndex >= 0;
        const bool bNarrow = b.exact || b.fromIndex >= 0;
        if (aNarrow != bNarrow) return aNarrow;
        return a.prefix.size() > b.prefix.size();
    });
    for (const TabRule& rule : rules) {
        if (!matches(rule, name, index)) continue;
        const auto tab = std::find(tabs.begin(), tabs.end(), text8(rule.tab));
        if (tab != tabs.end()) return static_cast<int>(tab - tabs.begin());
        // A serial port tab that the chip numbers.
        if (rule.tab == "Serieller Port") {
            const auto first = std::find(tabs.begin(), tabs.end(), "Serieller Port 0");
            if (first != tabs.end()) return static_cast<int>(first - tabs.begin());
        }
    }
    return -1;
}

std::string wizardFrameOf(const std::string& name) {
    static const std::map<std::string, std::string> frames = {
        {"UOption1", "UFrame1"},   {"U1Option1", "U1Frame1"}, {"T0Option1", "T0Frame1"},
        {"T0Check1", "T0Frame1"},  {"T1Option1", "T1Frame1"}, {"T1Check1", "T1Frame1"},
        {"T2Option1", "T2Frame1"},
    };
    const auto found = frames.find(name);
    return found != frames.end() ? found->second : std::string();
}

const std::vector<std::string>& wizardRowOf(const std::string& key) {
    static const std::vector<std::vector<std::string>> rows = {
        {"ULabel3", "UCombo1", "UCombo3"},
        {"ULabel4", "UCombo2", "UCombo4"},
        {"T0Label(0)", "T0Combo2"},
        {"T1Label(0)", "T1Combo2"},
        {"T0Label2", "T0Text1"},
        {"T0Label3", "T0Text2"},
        {"T1Label2", "T1Text1"},
        {"T1Label3", "T1Text2"},
        {"T0Check2", "T0Check3"},
        {"SText3", "SText4"},
        {"SLabel6", "SText5"},
        {"PWMSlider1", "PWMLabel2"},
        {"PWMSlider2", "PWMLabel3"},
        {"ICSlider1", "ICLabel2", "ICLabel1"},
        {"PWM0Slider", "PWM0Text"},
        {"PWM1Slider", "PWM1Text"},
        {"MDU5", "MDUText1"},
        {"MDU6", "MDUText2"},
        {"WDCommand1", "WDLabel"},
    };
    static const std::vector<std::string> alone;
    for (const auto& row : rows) {
        if (std::find(row.begin(), row.end(), key) != row.end()) return row;
    }
    return alone;
}

RowPlace wizardBesideRow(const std::string& name) {
    if (name == "IOption1") return {"ICheck1", 0};
    if (name == "IOption2") return {"ICheck1", 2};
    return {};
}

std::string wizardCaptionBeside(const std::string& chip, const std::string& name, int index) {
    static const std::map<std::string, std::string> captions = {
        {"SText1", "Oszillatorfrequenz in MHz:"},
        {"SText2", "Stackbeginn ab Adresse (hex):"},
        {"SCheck1", "Internen RAM nach dem Einschalten löschen"},
        {"SText3", "von Adresse (hex):"},
        {"SText4", "bis Adresse (hex):"},
        {"SCombo1", "Registerbank:"},
        {"SCheck2", "LCALL für Unterprogrammaufrufe verwenden"},
        {"T0Combo1", "Modus:"},
        {"T1Combo1", "Modus:"},
        {"T2Combo1", "Funktion:"},
        {"T2Combo2", "Vorteiler:"},
        {"U1Combo1", "Baudrate:"},
        {"SPIList1", "Taktrate im Master-Modus:"},
        {"S2Combo1", "Dauer des MOVX-Befehls:"},
        {"PWMText1", "Vorteiler PWMP (hex):"},
        {"PWMSlider1", "PWM0:"},
        {"PWMSlider2", "PWM1:"},
        {"PWM0Slider", "PWM0 Tastverhältnis:"},
        {"PWM1Slider", "PWM1 Tastverhältnis:"},
        {"ICSlider1", "Taktrate:"},
        {"ICText1", "Slave-Adresse (hex):"},
        {"WDText1", "Nachladewert (hex):"},
        {"STEText1", "STE, Setzen bei Compare (hex):"},
        {"RTEText1", "RTE, Rücksetzen bei Compare (hex):"},
        {"ADCombo1", "Analogeingang:"},
        {"ADCombo2", "Uref:"},
        {"ADCombo3", "Ugnd:"},
        {"CTCombo1", "Takt:"},
        {"CTText1", "Reload Low (hex):"},
        {"CTText2", "Reload High (hex):"},
        {"CC4Combo1", "Modus:"},
        {"CC4Combo2", "Ausgabe:"},
        {"CC4Slider", "Anzahl der Ausgänge:"},
        {"CC4Text1", "Compare Low (hex):"},
        {"CC4Text2", "Compare High (hex):"},
        {"MDUText1", "Stellen:"},
        {"MDUText2", "Stellen:"},
    };
    if (name == "UAdresse") return index == 0 ? "Slave-Adresse SADDR (hex):" : "Maske SADEN (hex):";
    if (name == "CCCombo1") return "CC" + std::to_string(index) + ":";
    const std::string n = std::to_string(index);
    if (name == "MCText1") return "Adresse " + n + ":";
    if (name == "CCText1") return "CC" + std::to_string(index + 1) + " Low, High (hex):";
    if (name == "CMText1" && chip == "517") {
        return "CM" + std::to_string(index / 2) + (index % 2 == 0 ? " Low (hex):" : " High (hex):");
    }
    if (name == "CMText1") return "CM" + n + " High, Low (hex):";
    if (name == "CTCombo1" && index >= 0) return "Capture " + n + ":";
    if (name == "IPSlider" && index >= 0 && index < 6) {
        static const char* const sources[] = {"Externer Interrupt 0",   "Timer 0",
                                              "Externer Interrupt 1",   "Timer 1",
                                              "Serieller Port und SPI", "Timer 2"};
        return std::string("Priorität ") + sources[index] + ":";
    }
    if (name == "IPCombo1" && index >= 0 && index < 6) {
        // The C515's and C517's sources share their level in pairs.
        static const char* const groups[] = {
            "Ext. Int. 0 / A/D-Wandler",    "Timer 0 / Ext. Int. 2",
            "Ext. Int. 1 / Ext. Int. 3",    "Timer 1 / Ext. Int. 4",
            "Serieller Port / Ext. Int. 5", "Timer 2 / Ext. Int. 6"};
        return std::string("Priorität ") + groups[index] + ":";
    }
    const auto found = captions.find(name);
    return found != captions.end() ? found->second : std::string();
}

}  // namespace korvex::gui
