#include "register_pages.h"

#include <algorithm>
#include <map>

#include "base/cp1252.h"
#include "base/failure.h"
#include "base/files.h"
#include "base/text.h"
#include "html.h"

namespace korvex::help {
namespace {

struct Entry {
    std::string address;
    std::string name;
    std::string meaning;
};

struct Driver {
    std::string title;  // the first comment line
    std::vector<Entry> vectors, sfrs, bits;
};

// The driver file as the help reads it: the sections with their comments.
Driver readDriver(const std::string& path) {
    Driver driver;
    std::vector<Entry>* section = nullptr;
    const std::string file = readWholeFile(path);  // the lines are views into it
    for (std::string_view raw : textLines(file)) {
        const std::string line = toUtf8(raw);
        if (driver.title.empty() && startsWith(line, ";"))
            driver.title = trimBlanks(line.substr(1));
        const std::string head = upperCase(trimBlanks(line));
        if (head == "VECTOR") section = &driver.vectors;
        if (head == "SFR") section = &driver.sfrs;
        if (head == "BIT") section = &driver.bits;
        if (section == nullptr || line.empty() || line[0] == ';' || head == "VECTOR" ||
            head == "SFR" || head == "BIT")
            continue;
        const std::size_t comment = line.find(';');
        const std::string code = trimBlanks(line.substr(0, comment));
        const std::size_t blank = code.find(' ');
        if (blank == std::string::npos) continue;
        section->push_back(
            Entry{code.substr(0, blank), trimBlanks(code.substr(blank)),
                  comment == std::string::npos ? "" : trimBlanks(line.substr(comment + 1))});
    }
    return driver;
}

std::string table(const std::vector<Entry>& entries, std::string_view addressHeading) {
    std::string text = "<table>\n<tr><th>" + std::string(addressHeading) +
                       "</th><th>Name</th><th>Bedeutung</th></tr>\n";
    for (const Entry& entry : entries)
        text += "<tr><td>" + escaped(entry.address) + "h</td><td><code>" + escaped(entry.name) +
                "</code></td><td>" + escaped(entry.meaning) + "</td></tr>\n";
    return text + "</table>\n";
}

// The registers of the standard core keep these values after a reset.
const std::map<std::string, std::string>& coreResetValues() {
    static const std::map<std::string, std::string> kValues = {
        {"P0", "FFh"},  {"P1", "FFh"},  {"P2", "FFh"},   {"P3", "FFh"},   {"SP", "07h"},
        {"DPL", "00h"}, {"DPH", "00h"}, {"TCON", "00h"}, {"TMOD", "00h"}, {"TL0", "00h"},
        {"TL1", "00h"}, {"TH0", "00h"}, {"TH1", "00h"},  {"SCON", "00h"}, {"PSW", "00h"},
        {"ACC", "00h"}, {"B", "00h"},
    };
    return kValues;
}

struct Family {
    std::string_view folder;
    std::string_view driver;
};

constexpr Family kFamilies[] = {
    {"552sfr", "80C552"},    {"c515sfr", "C515"},        {"c517sfr", "C517"},
    {"ds5000sfr", "DS5000"}, {"80c320sfr", "80C320"},    {"89c420sfr", "89C420"},
    {"89sxxsfr", "89S8253"}, {"89LP51sfr", "89LP51ED2"}, {"4052sfr", "89LP4052"},
    {"lpc912", "89LPC912"},  {"8032sfr", "8032"},
};

}  // namespace

std::vector<RegisterHelp> registerHelps(const std::string& driverFolder) {
    std::vector<RegisterHelp> helps;
    for (const Family& family : kFamilies) {
        const Driver driver = readDriver(driverFolder + std::string(family.driver) + ".cpu");
        const std::string chip = std::string(family.driver);
        RegisterHelp help;
        help.folder = std::string(family.folder);
        const std::string links =
            "<p>Weiter: <a href=\"index.html\">Register</a> · <a href=\"110.html\">Bits</a> · "
            "<a href=\"120.html\">Interruptvektoren</a> · <a "
            "href=\"140.html\">Resetstatus</a></p>\n";
        const std::string about = "<p>" + escaped(driver.title) +
                                  "</p>\n<p>Aus der Treiberdatei <code>" + chip +
                                  ".cpu</code>; mit <code>#cpu " + chip +
                                  "</code> kennt der Assembler diese Namen.</p>\n";
        help.pages.emplace_back(
            "index.html", page("Spezialfunktionsregister " + chip,
                               "<h1>Spezialfunktionsregister " + chip + "</h1>\n" + about + links +
                                   table(driver.sfrs, "Adresse")));
        help.pages.emplace_back(
            "110.html", page("Bitfunktionen in den SFR " + chip,
                             "<h1>Bitfunktionen in den SFR " + chip + "</h1>\n" + links +
                                 "<p>Bitadressen der bitadressierbaren Register; im Programm "
                                 "auch als <code>Register.Bit</code> schreibbar.</p>\n" +
                                 table(driver.bits, "Bitadresse")));
        help.pages.emplace_back(
            "120.html", page("Interruptvektoren " + chip,
                             "<h1>Interruptvektoren " + chip + "</h1>\n" + links +
                                 "<p>Ein Label mit dem Namen des Vektors legt die Routine an "
                                 "seine Adresse.</p>\n" +
                                 table(driver.vectors, "Adresse")));
        std::string reset = "<table>\n<tr><th>Register</th><th>nach Reset</th></tr>\n";
        for (const Entry& sfr : driver.sfrs) {
            const auto known = coreResetValues().find(sfr.name);
            if (known != coreResetValues().end())
                reset += "<tr><td><code>" + escaped(sfr.name) + "</code></td><td>" + known->second +
                         "</td></tr>\n";
        }
        reset += "</table>\n";
        help.pages.emplace_back(
            "140.html",
            page("Resetstatus " + chip,
                 "<h1>Resetstatus " + chip + "</h1>\n" + links +
                     "<p>Nach einem Reset beginnt das Programm bei 0000h; die Register des "
                     "Standardkerns haben diese Werte. Die Werte der übrigen Register nennt das "
                     "Datenblatt des Herstellers; ein Programm sollte sich auf sie nicht "
                     "verlassen und sie selbst setzen.</p>\n" +
                     reset));
        helps.push_back(std::move(help));
    }
    return helps;
}

}  // namespace korvex::help
