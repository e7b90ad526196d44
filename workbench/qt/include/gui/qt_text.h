#pragma once
// The edge between the 8-bit world of the logic and Qt's Unicode strings.

#include <QString>
#include <string>
#include <string_view>

namespace korvex::gui {

// Windows-1252 bytes, as the logic holds text, to a Qt string.
QString fromCp1252(std::string_view cp1252);

// A Qt string back to Windows-1252; characters the code page lacks become '?'.
std::string toCp1252(const QString& text);

}  // namespace korvex::gui
