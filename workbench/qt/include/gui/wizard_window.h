#pragma once
// One chip wizard as a window: the tabs with a widget for every control of
// its settings record (object name = the control's name, "UOption1(2)" for
// a button of a group, "ICheck1(4)" for a member of an array), the live
// preview and the two buttons. Every user action goes to the wizard's change
// operation, and what the operation changed comes back through the
// observer, so value, enabled and visible follow the record both ways.

#include <QWidget>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "wizards/core/control_changes.h"
#include "wizards/core/editor_transfer.h"
#include "wizards/core/wizard.h"
#include "wizards/core/wizard_host.h"

class QAbstractButton;
class QLabel;
class QTabWidget;
class QLineEdit;

namespace korvex::gui {

class WizardPreview;

class WizardWindow : public QWidget, private wizards::WizardObserver {
    Q_OBJECT

  public:
    // `wizard` is opened here; `host` shows the boxes of a failed run;
    // `editors` receives "Übernehmen". All three outlive the window.
    WizardWindow(std::string chip, wizards::Wizard& wizard, wizards::WizardHost& host,
                 wizards::EditorAccess& editors, QWidget* parent = nullptr);
    ~WizardWindow() override;

    wizards::Wizard& wizard() { return wizard_; }
    WizardPreview* preview() const { return preview_; }
    QTabWidget* tabs() const { return tabs_; }
    // The widget of a control ("SText1", "ICheck1(4)", "UOption1(2)").
    QWidget* control(const QString& key) const;

    // Shows the window again with its settings, in front and in its normal size.
    void open();

  signals:
    // The program went into a source window.
    void transferred();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    // The window's close button is "Abbrechen": hidden, the settings kept.
    void closeEvent(QCloseEvent* event) override;

  private:
    // A control and what shows it.
    struct Bound {
        wizards::ControlRef ref;
        QWidget* widget = nullptr;  // the control's own widget
        QWidget* outer = nullptr;   // what is hidden with it (the widget and its caption)
        QLabel* caption = nullptr;  // the describing text beside it, if any
        std::vector<QAbstractButton*> buttons;  // an option group's buttons
    };

    // WizardObserver
    void controlsChanged(const std::vector<wizards::ControlChange>& changes) override;
    void previewChanged(const std::string& text) override;

    // The panels: one scrolling panel per tab, built from the registry.
    void buildTabs();
    QWidget* buildPanel(const std::vector<std::string>& keys);
    // The control's widget in its caption; registered under its key.
    QWidget* place(const std::string& key);
    QWidget* placeArrays(const std::vector<std::string>& arrays,
                         const std::vector<std::string>& keys);
    void bindUserActions(Bound& bound);
    void bindTyping(QLineEdit* field, const std::string& name, int index);
    void showControl(Bound& bound);
    void showPreview();
    void cancel();
    void transfer();

    // Runs a user action on the wizard; a failure of the run shows its box,
    // and a refused value puts the widgets back to what the record says.
    template <typename Action>
    void act(const std::string& key, Action&& action);
    void resyncAll();

    std::string chip_;
    wizards::Wizard& wizard_;
    wizards::WizardHost& host_;
    wizards::EditorAccess& editors_;
    QTabWidget* tabs_ = nullptr;
    WizardPreview* preview_ = nullptr;
    std::map<std::string, std::unique_ptr<Bound>> bound_;
    std::map<QObject*, std::pair<std::string, int>> fieldKeys_;  // typed fields: name, index
    std::string shownProgram_;
    bool syncing_ = false;  // the widgets are being set from the record
};

}  // namespace korvex::gui
