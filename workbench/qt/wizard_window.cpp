#include "gui/wizard_window.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>
#include <stdexcept>

#include "base/failure.h"
#include "gui/qt_text.h"
#include "gui/wizard_layout.h"
#include "gui/wizard_preview.h"

namespace korvex::gui {

using namespace korvex::wizards;

WizardWindow::WizardWindow(std::string chip, Wizard& wizard, WizardHost& host,
                           EditorAccess& editors, QWidget* parent)
    : QWidget(parent, Qt::Window),
      chip_(std::move(chip)),
      wizard_(wizard),
      host_(host),
      editors_(editors) {
    setObjectName(QStringLiteral("Assistent%1").arg(QString::fromStdString(chip_)));
    setWindowTitle(fromCp1252(wizard_.windowTitle()));
    wizard_.openWizard();

    tabs_ = new QTabWidget;
    tabs_->setObjectName(QStringLiteral("SSTab1"));
    tabs_->setUsesScrollButtons(true);
    preview_ = new WizardPreview;
    preview_->setObjectName(QStringLiteral("Vorschau"));
    buildTabs();

    auto* split = new QSplitter(Qt::Horizontal);
    split->addWidget(tabs_);
    split->addWidget(preview_);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const char* name : {"Command2", "Command1"}) {
        const auto ref = wizard_.controls().find(name);
        if (!ref) continue;
        auto* button = new QPushButton(fromCp1252(std::get<CommandButton*>(*ref)->caption));
        button->setObjectName(QString::fromLatin1(name));
        button->setMinimumWidth(110);
        buttons->addWidget(button);
        if (std::string(name) == "Command1") {
            connect(button, &QPushButton::clicked, this, [this] { cancel(); });
        } else {
            connect(button, &QPushButton::clicked, this, [this] { transfer(); });
        }
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(split, 1);
    layout->addLayout(buttons);

    connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) { wizard_.selectTab(tab); });
    wizard_.setObserver(this);
    resyncAll();
    showPreview();
    resize(1200, 720);
    split->setSizes({640, 560});
}

WizardWindow::~WizardWindow() {
    wizard_.setObserver(nullptr);
}

QWidget* WizardWindow::control(const QString& key) const {
    return findChild<QWidget*>(key);
}

void WizardWindow::open() {
    wizard_.openWizard();
    tabs_->setCurrentIndex(wizard_.selectedTab());
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

void WizardWindow::cancel() {
    wizard_.cancelWizard();
    hide();
}

void WizardWindow::closeEvent(QCloseEvent* event) {
    wizard_.cancelWizard();
    QWidget::closeEvent(event);
}

void WizardWindow::transfer() {
    act("Command2", [this] { wizard_.transferToEditor(editors_); });
    if (!wizard_.windowVisible()) {
        hide();
        emit transferred();
    }
}

template <typename Action>
void WizardWindow::act(const std::string& key, Action&& action) {
    if (syncing_) return;
    try {
        action();
        // The widget the user touched shows what the record kept: a No to a
        // question takes a tick back without the record changing at all.
        if (const auto touched = bound_.find(key); touched != bound_.end()) {
            showControl(*touched->second);
        }
    } catch (const ControlUseError&) {
        // The widget showed a state the record doesn't allow; show the record's.
        resyncAll();
    } catch (const RuntimeFailure& failure) {
        host_.failure(failureBoxText(failure, "regenerateProgram"));
        resyncAll();
    } catch (const std::out_of_range&) {
        host_.failure(
            failureBoxText(RuntimeFailure(FailureNumber::IndexOutOfRange), "regenerateProgram"));
        resyncAll();
    }
}

void WizardWindow::controlsChanged(const std::vector<ControlChange>& changes) {
    for (const ControlChange& change : changes) {
        if (const auto found = bound_.find(change.key); found != bound_.end()) {
            showControl(*found->second);
        }
    }
}

void WizardWindow::previewChanged(const std::string&) {
    showPreview();
}

void WizardWindow::resyncAll() {
    for (auto& [key, bound] : bound_) showControl(*bound);
    showPreview();
}

void WizardWindow::showPreview() {
    if (wizard_.previewText() == shownProgram_) return;
    shownProgram_ = wizard_.previewText();
    preview_->showProgram(shownProgram_, wizard_.previewColouring());
}

void WizardWindow::bindUserActions(Bound& bound) {
    const std::string name = baseOf(bound.ref).name;
    const int index = baseOf(bound.ref).index;
    const std::string key = wizards::ControlRegistry::keyOf(name, index);
    if (auto* check = qobject_cast<QCheckBox*>(bound.widget)) {
        connect(check, &QCheckBox::clicked, this, [this, key, name, index](bool on) {
            act(key, [&] { wizard_.userSets(name, index, on ? "1" : "0"); });
        });
    } else if (auto* slider = qobject_cast<QSlider*>(bound.widget)) {
        connect(slider, &QSlider::valueChanged, this, [this, key, name, index](int value) {
            act(key, [&] { wizard_.userSets(name, index, std::to_string(value)); });
        });
    } else if (auto* button = qobject_cast<QPushButton*>(bound.widget)) {
        connect(button, &QPushButton::clicked, this,
                [this, key, name, index] { act(key, [&] { wizard_.userClicks(name, index); }); });
    } else if (auto* list = qobject_cast<QComboBox*>(bound.widget)) {
        const bool editable = list->isEditable();
        connect(list, &QComboBox::activated, this,
                [this, key, name, index, editable, list](int item) {
                    const std::string value =
                        editable ? toCp1252(list->itemText(item)) : std::to_string(item);
                    act(key, [&] { wizard_.userSets(name, index, value); });
                });
        if (editable) bindTyping(list->lineEdit(), name, index);
    } else if (auto* field = qobject_cast<QLineEdit*>(bound.widget)) {
        bindTyping(field, name, index);
    }
    for (std::size_t i = 0; i < bound.buttons.size(); ++i) {
        connect(bound.buttons[i], &QAbstractButton::clicked, this, [this, key, name, index, i] {
            act(key, [&] { wizard_.userSets(name, index, std::to_string(i)); });
        });
    }
}

void WizardWindow::bindTyping(QLineEdit* field, const std::string& name, int index) {
    fieldKeys_[field] = {name, index};
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, [this, name, index](const QString& text) {
        act(wizards::ControlRegistry::keyOf(name, index),
            [&] { wizard_.userSets(name, index, toCp1252(text)); });
    });
}

bool WizardWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto found = fieldKeys_.find(watched);
    if (found == fieldKeys_.end()) return QWidget::eventFilter(watched, event);
    const std::string name = found->second.first;
    const int index = found->second.second;
    auto* field = static_cast<QLineEdit*>(watched);
    if (event->type() == QEvent::FocusOut) {
        act(ControlRegistry::keyOf(name, index), [&] { wizard_.userLeaves(name, index); });
    } else if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        // Only keys that type a character, and Backspace, pass the field's filter.
        std::int16_t code = 0;
        if (key->key() == Qt::Key_Backspace) {
            code = 8;
        } else if (key->text().size() == 1 && key->text()[0].unicode() >= 32 &&
                   (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0) {
            const std::string typed = toCp1252(key->text());
            code = static_cast<std::int16_t>(static_cast<unsigned char>(typed[0]));
        } else {
            return QWidget::eventFilter(watched, event);
        }
        const int selection = static_cast<int>(field->selectedText().size());
        std::int16_t filtered = code;
        act({}, [&] { filtered = wizard_.userPresses(name, index, code, selection); });
        if (filtered == 0) return true;  // dropped
        if (filtered != code) {
            // The filter turned the key into another one ("a" into "A"): type that instead.
            field->insert(fromCp1252(std::string(1, static_cast<char>(filtered))));
            const std::string text = toCp1252(field->text());
            act(ControlRegistry::keyOf(name, index), [&] { wizard_.userSets(name, index, text); });
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace korvex::gui
