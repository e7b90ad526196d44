// frmEndungen and FrmSetup, opened through their menu commands.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>

#include "main_window_fixture.h"

namespace korvex::gui {
namespace {

// Runs `act` on the dialog that the command opens, once it is up.
template <typename Act>
void onDialog(Bench& bench, const char* command, Act act) {
    QTimer::singleShot(0, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(dialog);
    });
    bench.trigger(command);
}

template <typename Widget>
Widget* child(QWidget* dialog, const char* name) {
    return dialog->findChild<Widget*>(QString::fromLatin1(name));
}

TEST(ExtensionsDialog, OkStoresTheFieldsStandardOnlyFillsThemAndAProblemKeepsItOpen) {
    Bench bench;
    onDialog(bench, "mnuOExtensions", [](QWidget* dialog) {
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Dateiendungen"));
        child<QLineEdit>(dialog, "Text1")->setText(QStringLiteral("asm"));
        child<QPushButton>(dialog, "Command1")->click();
    });
    EXPECT_EQ(bench.window.settings().sourceExtension, "asm");

    onDialog(bench, "mnuOExtensions", [&bench](QWidget* dialog) {
        child<QPushButton>(dialog, "Command3")->click();
        EXPECT_EQ(child<QLineEdit>(dialog, "Text1")->text(), QStringLiteral("a51"));
        EXPECT_EQ(bench.window.settings().sourceExtension, "asm");
        child<QLineEdit>(dialog, "Text2")->setText(QStringLiteral("A51"));
        child<QPushButton>(dialog, "Command1")->click();  // listing would overwrite the source
        EXPECT_TRUE(dialog->isVisible());
        child<QPushButton>(dialog, "Command2")->click();
    });
    EXPECT_EQ(bench.window.settings().sourceExtension, "asm");
    EXPECT_EQ(bench.host.boxes.size(), 1u);
}

TEST(SetupDialog, TheToolbarChangesAtOnceAndCancelPutsItBack) {
    Bench bench;
    onDialog(bench, "mnuOToolbar", [&bench](QWidget* dialog) {
        child<QSlider>(dialog, "SetupSlider1")->setValue(3);
        child<QCheckBox>(dialog, "SetupCheck1")->setChecked(false);
        EXPECT_EQ(bench.window.toolBarArea(bench.window.toolbar()), Qt::RightToolBarArea);
        EXPECT_TRUE(bench.window.toolbar()->isHidden());
        child<QPushButton>(dialog, "SetupCommand2")->click();
    });
    EXPECT_EQ(bench.window.toolBarArea(bench.window.toolbar()), Qt::TopToolBarArea);
    EXPECT_FALSE(bench.window.toolbar()->isHidden());
}

TEST(SetupDialog, TakeOverStoresTheEditorChoicesAndTheToolbar) {
    Bench bench;
    onDialog(bench, "mnuOToolbar", [](QWidget* dialog) {
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Einstellungen"));
        child<QSlider>(dialog, "SetupSlider1")->setValue(1);
        child<QRadioButton>(dialog, "SetupOption2(0)")->setChecked(true);
        child<QRadioButton>(dialog, "SetupOption3(0)")->setChecked(true);
        child<QRadioButton>(dialog, "SetupOption4(0)")->setChecked(true);
        child<QPushButton>(dialog, "SetupCommand1")->click();
    });
    const Settings& settings = bench.window.settings();
    EXPECT_EQ(settings.TwoWindowsAtStart, 1);
    EXPECT_TRUE(settings.HangingIndent);
    EXPECT_TRUE(settings.BookmarksEnabled);
    EXPECT_EQ(settings.toolbar.align, 2);
    EXPECT_EQ(bench.window.toolBarArea(bench.window.toolbar()), Qt::BottomToolBarArea);
}

}  // namespace
}  // namespace korvex::gui
