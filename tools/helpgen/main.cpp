// Makes the generated part of the help: the instruction pages and the
// contents of the main help, the register help of every controller family
// and the pin pictures.
//   korvex_helpgen HELP_FOLDER DRIVER_FOLDER
//   korvex_helpgen --check PROGRAM_FOLDER DRIVER_FOLDER  (topics and examples)
// Both folders end in "/"; the help folder gets korvex/ and one folder per
// register help file.

#include <filesystem>
#include <iostream>

#include "contents_page.h"
#include "help_check.h"
#include "html.h"
#include "instruction_pages.h"
#include "pin_pictures.h"
#include "register_pages.h"

int main(int argc, char** argv) {
    // --check PROGRAMMORDNER TREIBERORDNER: the built help, checked.
    if (argc == 4 && std::string(argv[1]) == "--check") {
        const std::vector<std::string> problems = korvex::help::checkHelp(argv[2], argv[3]);
        for (const std::string& problem : problems)
            std::cerr << "korvex_helpgen: " << problem << '\n';
        return problems.empty() ? 0 : 1;
    }
    if (argc != 3) {
        std::cerr << "Aufruf: korvex_helpgen HILFEORDNER TREIBERORDNER\n"
                     "        korvex_helpgen --check PROGRAMMORDNER TREIBERORDNER\n";
        return 2;
    }
    const std::string help = argv[1];
    const std::string drivers = argv[2];
    std::error_code error;
    std::filesystem::create_directories(help + "korvex", error);
    bool written = true;
    for (const auto& instruction : korvex::help::instructionPages())
        written &= korvex::help::writePage(help + "korvex/" + instruction.file, instruction.html);
    written &= korvex::help::writePage(help + "korvex/index.html",
                                       korvex::help::contentsPage(help + "korvex/"));
    for (const auto& family : korvex::help::registerHelps(drivers)) {
        std::filesystem::create_directories(help + family.folder, error);
        for (const auto& [file, html] : family.pages)
            written &= korvex::help::writePage(help + family.folder + "/" + file, html);
    }
    std::filesystem::create_directories(help + "pins", error);
    for (const auto& picture : korvex::help::pinPictures(drivers))
        written &= korvex::help::writePage(help + "pins/" + picture.file, picture.svg);
    if (!written) {
        std::cerr << "korvex_helpgen: Hilfeseiten konnten nicht geschrieben werden.\n";
        return 1;
    }
    return 0;
}
