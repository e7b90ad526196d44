#include "gui/qt_text.h"

#include "base/cp1252.h"

namespace korvex::gui {

QString fromCp1252(std::string_view cp1252) {
    const std::string utf8 = toUtf8(cp1252);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string toCp1252(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return fromUtf8(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

}  // namespace korvex::gui
