#pragma once
// FrmSetup: the toolbar, the eleven colours and the editor's choices on three
// pages. The toolbar and the colours change at once; closing without
// "Übernehmen" puts them back.

#include <QDialog>
#include <array>
#include <functional>

#include "base/host.h"
#include "workbench/settings.h"

class QAbstractButton;
class QCheckBox;
class QRadioButton;
class QSlider;
class QTabWidget;
class QToolButton;

namespace korvex::gui {

class CommandToolbar;
class SetupImage;

class SetupDialog : public QDialog {
    Q_OBJECT

  public:
    SetupDialog(Settings& settings, Host& host, CommandToolbar& toolbar, QWidget* parent = nullptr);
    // The help button shows this; without it, it says there is none yet.
    void setHelp(std::function<void()> help) { help_ = std::move(help); }

    void done(int result) override;

  signals:
    // The colours to show now; the settings aren't changed yet.
    void coloursChanged(const Settings& withColours);
    // The choices are stored.
    void applied(bool wrappingChanged, bool bookmarksTurnedOff);

  private:
    std::function<void()> help_;
    QWidget* toolbarPage();
    QWidget* coloursPage();
    QWidget* editorPage();
    void toolbarChanged();
    void chooseColour(int index);
    void setColour(int index, std::int32_t colour);
    void apply();

    Settings& settings_;
    Host& host_;
    CommandToolbar& toolbar_;
    const ToolbarState noted_;
    std::array<std::int32_t, kColourCount> colours_;
    bool applied_ = false;

    QTabWidget* pages_ = nullptr;
    QSlider* position_ = nullptr;
    QRadioButton* flat_ = nullptr;
    QCheckBox* visible_ = nullptr;
    std::array<QToolButton*, kColourCount> swatches_{};
    QRadioButton* twoWindows_ = nullptr;
    QRadioButton* hanging_ = nullptr;
    QCheckBox* noRightWrap_ = nullptr;
    QRadioButton* bookmarks_ = nullptr;
};

}  // namespace korvex::gui
