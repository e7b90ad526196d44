#pragma once
// frmListing: a listing file to read, coloured as the report is, its code
// bytes and source text in columns. The text may be edited but is never
// saved.

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "workbench/editor_flags.h"
#include "workbench/settings.h"

class QTextEdit;

namespace korvex {
class TextControl;
}

namespace korvex::gui {

class QtTextControl;

class ListingWindow : public QWidget {
    Q_OBJECT

  public:
    ListingWindow(EditorFlags& flags, const Settings& settings, QWidget* parent = nullptr);
    ~ListingWindow() override;

    void load(const std::string& text);
    QTextEdit* textEdit() const { return text_; }
    TextControl& textControl();
    // New colours from the settings: background and comments.
    void applySettings(const Settings& settings);
    // F1 hands over the word at the caret.
    void setHelp(std::function<void(const std::string&)> help) { help_ = std::move(help); }

  signals:
    void editMenuRequested(const QPoint& globalPosition);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void applyBackground();

    EditorFlags& flags_;
    Settings settings_;
    QTextEdit* text_ = nullptr;
    std::unique_ptr<QtTextControl> box_;
    std::function<void(const std::string&)> help_;
};

}  // namespace korvex::gui
