#pragma once
// The pin pictures of the help menu, drawn as SVG from our own pin tables
// and the port functions that our driver files name.

#include <string>
#include <vector>

namespace korvex::help {

struct PinPicture {
    std::string file;  // "8032.svg"
    std::string svg;
};

std::vector<PinPicture> pinPictures(const std::string& driverFolder);

}  // namespace korvex::help
