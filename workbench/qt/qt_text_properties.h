#pragma once
// What the Qt text control keeps in the document beside Qt's own formats:
// the picture's resource name, and the exact values of the logic that the
// widget's own units would round (colours that name a system colour, indents
// in twips).

#include <QString>
#include <QTextFormat>

namespace korvex::gui {

inline const QString kPictureName = QStringLiteral("korvex-lesezeichen");

inline constexpr int kColourProperty = QTextFormat::UserProperty + 1;
inline constexpr int kIndentProperty = QTextFormat::UserProperty + 2;
inline constexpr int kHangingIndentProperty = QTextFormat::UserProperty + 3;

// 15 twips make one pixel.
inline constexpr double kTwipsPerPixel = 15.0;

}  // namespace korvex::gui
