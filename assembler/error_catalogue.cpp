#include "assembler/error_catalogue.h"

#include <array>
#include <string_view>

#include "base/cp1252.h"

namespace korvex {
namespace {

struct Entry {
    std::string_view words;  // UTF-8 in the source
    bool final;
};

constexpr std::array<Entry, 41> kCatalogue = {{
    {"", false},
    {"ungültige Operandenkombination", false},
    {"nur R0 bis R7 möglich", false},
    {"#data-Angabe fehlt", false},
    {"ungültige Direct-Adresse", false},
    {"Blocküberschreitung", false},
    {"unbekannter Befehl bzw. Sprungziel nicht gefunden", false},
    {"Variable nicht erkannt", false},
    {"Bit nicht erkannt", false},
    {"Org-Adresse nicht erkannt", false},
    {"nicht bitadressierbar", false},
    {"Adresse liegt in eventuell beschriebenem Bereich", true},
    {"String zu lang", false},
    {"#data zu groß", false},
    {"IF-Struktur nicht erkannt", true},
    {"Ungültige Exit-Anweisung", false},
    {"Ungültige End-Anweisung", false},
    {"Hochkommafehler", false},
    {"Tabellenwert > FFh", false},
    {"Formatfehler in Tabelle", false},
    {"Syntaxfehler in Loop", true},
    {"relativer Adressbereich überschritten", true},
    {"Else/End IF ohne IF-Beginn", true},
    {"Next ohne For-Beginn", true},
    {"End Loop ohne Loop-Beginn", true},
    {"Exit If nicht möglich", true},
    {"Exit For außerhalb einer For-Schleife", true},
    {"Exit Loop außerhalb einer Loop-Schleife", true},
    {"Befehl nicht erkannt", false},
    {"Entfernen Sie das Leerzeichen nach #", true},
    {"#data16 nicht erkannt", false},
    {"Wert zu groß", false},
    {"Syntaxfehler", true},
    {"nur bitadressierbare SFR", false},
    {"Bitadresse zu groß", false},
    {"Else mehrfach vorhanden", true},
    {"ungültige Bitnummer", true},
    {"ElseIf nach Else", true},
    {"Else ohne If", true},
    {"ungültiger Rechenausdruck", true},
    {"Division mit null", true},
}};

// The words in the system's code page, converted once.
const std::array<CatalogueEntry, kCatalogue.size()>& convertedCatalogue() {
    static const auto converted = [] {
        std::array<CatalogueEntry, kCatalogue.size()> table;
        for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
            table[i] = {text8(kCatalogue[i].words),
                        kCatalogue[i].final ? FindingKind::Final : FindingKind::Retried};
        }
        return table;
    }();
    return converted;
}

const std::array<std::string, kCatalogue.size()>& convertedMarkers() {
    static const auto markers = [] {
        std::array<std::string, kCatalogue.size()> table;
        for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
            table[i] = ";>err" + std::to_string(i) + ": " + convertedCatalogue()[i].words;
        }
        return table;
    }();
    return markers;
}

bool inCatalogue(int number) {
    return number >= 1 && number < static_cast<int>(kCatalogue.size());
}

}  // namespace

CatalogueEntry catalogueEntry(int number) {
    if (!inCatalogue(number)) return {std::string(), FindingKind::Retried};
    return convertedCatalogue()[static_cast<std::size_t>(number)];
}

FindingKind findingKind(int number) {
    return inCatalogue(number) ? convertedCatalogue()[static_cast<std::size_t>(number)].kind
                               : FindingKind::Retried;
}

std::string findingMarker(Finding finding, std::string_view subject) {
    struct Text {
        Finding finding;
        std::string_view before;  // UTF-8 in the source
        std::string_view after;   // behind the subject
    };
    static constexpr Text kTexts[] = {
        {Finding::InvalidBitName, "ungültige Bitbezeichnung ", ""},
        {Finding::NumberNotRecognised, "Zahl nicht erkannt: ", ""},
        {Finding::ConstantDefinedTwice, "Konstante '", "' ist bereits definiert"},
        {Finding::ConstantWithoutValue, "falsche Konstantendeklaration (= fehlt)", ""},
        {Finding::PlacedBitDefinedTwice, "Bit '", "' ist bereits definiert"},
        {Finding::BitDefinedTwice, "Bit '", "' ist bereits definiert"},
        {Finding::ByteNamesSfr, "'", "' ist ein Spezialfunktionsregister."},
        {Finding::PlacedByteDefinedTwice, "Mehrfachdefinition von '", "'"},
        {Finding::ByteDefinedTwice, "Mehrfachdefinition von '", "'"},
        {Finding::WordNamesSfr, "SFR '", "' hat denselben Namen."},
        {Finding::WordDefinedTwice, "Word '", "' ist bereits definiert"},
        {Finding::ExitOutOfRange, "relativer Adressbereich überschritten", ""},
        {Finding::ExitConditionInvalid, "ungültige Operandenkombination", ""},
        {Finding::MacroDefinedTwice, "doppelte Definition", ""},
        {Finding::MacroBracesMissing, "es fehlen {}", ""},
        {Finding::IncludeNotFound, "Include-Datei nicht gefunden: ", ""},
        {Finding::MacroArgumentsMissing, "Argumente fehlen", ""},
        {Finding::LabelDefinedTwice, "Label bereits definiert", ""},
    };
    std::string marker = ";>err" + std::to_string(findingNumber(finding)) + " ";
    for (const Text& text : kTexts) {
        if (text.finding != finding) continue;
        marker += text8(text.before);
        marker += subject;
        marker += text8(text.after);
        return marker;
    }
    return marker + std::string(subject);
}

std::string tableItemMarker(std::string_view item) {
    return ";>err" + std::to_string(findingNumber(Finding::VariableNotRecognised)) + " " +
           std::string(item) + " nicht erkannt.";
}

std::string catalogueMarker(int number) {
    if (!inCatalogue(number)) return ";>err" + std::to_string(number) + ": ";
    return convertedMarkers()[static_cast<std::size_t>(number)];
}

}  // namespace korvex
