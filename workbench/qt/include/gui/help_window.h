#pragma once
// The help viewer: the German help pages of the program folder in a browser
// window with contents, back and forward.

#include <QWidget>
#include <string>

#include "workbench/help_topics.h"

class QTextBrowser;

namespace korvex::gui {

class HelpWindow : public QWidget {
    Q_OBJECT

  public:
    HelpWindow(std::string programFolder, QWidget* parent = nullptr);

    // Shows the page; false (and nothing shown) when the page is missing.
    bool show(const HelpRequest& request);
    QTextBrowser* browser() const { return browser_; }

  private:
    std::string programFolder_;
    QTextBrowser* browser_ = nullptr;
};

}  // namespace korvex::gui
