#pragma once
// Changes made through the Qt text control's interface report their events
// once, at the end, whatever order the widget's own signals came in.

#include "gui/qt_text_control.h"

namespace korvex::gui {

class QtTextControl::Operation {
  public:
    explicit Operation(QtTextControl& control) : control_(control) { ++control_.operationDepth_; }
    ~Operation() {
        if (--control_.operationDepth_ == 0) control_.finishOperation();
    }
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

  private:
    QtTextControl& control_;
};

}  // namespace korvex::gui
