#include "gui/qt_text.h"

#include <gtest/gtest.h>

namespace korvex::gui {
namespace {

TEST(QtTextEdge, EveryByteSurvivesTheRoundTripThroughAWidgetString) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(toCp1252(fromCp1252(all)), all);
    EXPECT_EQ(fromCp1252("\xC4rger \x80"), QStringLiteral(u"Ärger €"));
    EXPECT_EQ(toCp1252(QStringLiteral(u"Ω")), "?");
}

}  // namespace
}  // namespace korvex::gui
