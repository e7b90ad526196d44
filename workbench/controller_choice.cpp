#include "workbench/controller_choice.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/cp1252.h"

namespace korvex {

std::vector<std::string> AvailableControllers(const std::string& programFolder) {
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(programFolder, error)) {
        const std::string file = entry.path().filename().string();
        if (file.size() > 4 && file.compare(file.size() - 4, 4, ".cpu") == 0 &&
            entry.is_regular_file(error))
            names.push_back(fromUtf8(file.substr(0, file.size() - 4)));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string RegisterHelpFile(const std::string& controllerName) {
    struct Family {
        std::vector<std::string_view> names;
        std::string_view file;
    };
    static const Family kFamilies[] = {
        {{"80C552"}, "552sfr.hlp"},
        {{"80C535", "80535", "80515", "80C515", "C515"}, "c515sfr.hlp"},
        {{"80C537", "80C517", "C517", "C509"}, "c517sfr.hlp"},
        {{"DS5000", "DS5001"}, "ds5000sfr.hlp"},
        {{"80C320"}, "80c320sfr.hlp"},
        {{"89C420"}, "89c420sfr.hlp"},
        {{"89S53", "89S8252", "89S8253"}, "89sxxsfr.hlp"},
        {{"89LP51ED2"}, "89LP51sfr.hlp"},
        {{"89LP4052"}, "4052sfr.hlp"},
        {{"89LPC912", "89LPC913", "89LPC914"}, "lpc912.hlp"},
    };
    const std::string name = upperCase(controllerName);
    for (const Family& family : kFamilies)
        if (std::find(family.names.begin(), family.names.end(), name) != family.names.end())
            return std::string(family.file);
    return "8032sfr.hlp";
}

}  // namespace korvex
