// The tabs of a wizard window, built from the controls of its record: each
// control gets the widget of its kind, named after it, with the text that
// describes it; frames hold their option groups, control arrays of one tab
// stand in a grid, one row per index.

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "base/cp1252.h"
#include "gui/qt_text.h"
#include "gui/wizard_layout.h"
#include "gui/wizard_window.h"

namespace korvex::gui {

using namespace korvex::wizards;

namespace {

QString keyText(const std::string& key) {
    return QString::fromLatin1(key.c_str());
}

// A hexadecimal field of two digits, a binary one of eight, or free text.
int fieldWidth(const QWidget* field, const std::string& name, const std::string& text) {
    const QFontMetrics metrics(field->font());
    if (name == "SText1") return metrics.horizontalAdvance(QStringLiteral("0000000000")) + 12;
    if (text.size() == 2) return metrics.horizontalAdvance(QStringLiteral("WWW")) + 12;
    if (text.size() == 8) return metrics.horizontalAdvance(QStringLiteral("0000000000")) + 12;
    return -1;
}

// Whether a control's widget takes the width of its panel: free text and
// output lines do; boxes, lists and buttons keep their own size.
bool takesTheWidth(const ControlRef& ref) {
    if (auto* const* box = std::get_if<TextBox*>(&ref))
        return (*box)->locked || (*box)->text.size() != 2;
    return std::holds_alternative<Label*>(ref) || std::holds_alternative<Slider*>(ref);
}

}  // namespace

void WizardWindow::buildTabs() {
    const std::vector<std::string> names = wizard_.tabNames();
    std::vector<std::vector<std::string>> keys(names.size());
    for (const auto& [key, ref] : wizard_.controls().all()) {
        const Control& control = baseOf(ref);
        if (control.name == "Command1" || control.name == "Command2") continue;
        const int tab = wizardTabOf(chip_, names, control.name, control.index);
        // A control no rule places still shows, on the first tab.
        keys[static_cast<std::size_t>(std::max(tab, 0))].push_back(key);
    }
    for (std::size_t tab = 0; tab < names.size(); ++tab) {
        QWidget* panel = buildPanel(keys[tab]);
        panel->setObjectName(QStringLiteral("Rahmen(%1)").arg(tab));
        auto* scroll = new QScrollArea;
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidget(panel);
        const int at = tabs_->addTab(scroll, fromCp1252(names[tab]));
        if (names[tab] == "SPI")
            tabs_->setTabToolTip(at, QStringLiteral("Serial Peripheral Interface"));
    }
}

QWidget* WizardWindow::buildPanel(const std::vector<std::string>& keys) {
    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    std::map<std::string, ControlRef> refs;
    for (const auto& [key, ref] : wizard_.controls().all()) refs.emplace(key, ref);
    const auto on = [&](const std::string& key) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    };

    // Arrays of this tab with the same indices share one grid.
    std::map<std::string, std::vector<std::string>> members;
    std::vector<std::string> arrayOrder;
    for (const std::string& key : keys) {
        const Control& control = baseOf(refs.at(key));
        if (control.index < 0 || !wizardRowOf(key).empty()) continue;
        if (!members.count(control.name)) arrayOrder.push_back(control.name);
        members[control.name].push_back(key);
    }
    const auto indicesOf = [&](const std::string& name) {
        std::vector<int> indices;
        for (const std::string& key : members[name]) indices.push_back(baseOf(refs.at(key)).index);
        return indices;
    };
    std::vector<std::vector<std::string>> grids;
    std::map<std::string, std::size_t> gridOf;
    for (const std::string& name : arrayOrder) {
        std::size_t grid = 0;
        while (grid < grids.size() && indicesOf(grids[grid].front()) != indicesOf(name)) ++grid;
        if (grid == grids.size()) grids.emplace_back();
        grids[grid].push_back(name);
        gridOf[name] = grid;
    }
    std::set<std::size_t> gridsPlaced;

    std::set<std::string> placed;
    std::map<std::string, QVBoxLayout*> frames;
    for (const std::string& key : keys) {
        if (placed.count(key)) continue;
        const ControlRef& ref = refs.at(key);
        const Control& control = baseOf(ref);
        QVBoxLayout* target = column;
        if (const auto frame = frames.find(wizardFrameOf(control.name)); frame != frames.end()) {
            target = frame->second;
        }
        if (std::holds_alternative<Frame*>(ref)) {
            auto* box = new QGroupBox(fromCp1252(std::get<Frame*>(ref)->caption));
            box->setObjectName(keyText(key));
            frames[control.name] = new QVBoxLayout(box);
            auto bound = std::make_unique<Bound>();
            bound->ref = ref;
            bound->widget = bound->outer = box;
            bound_[key] = std::move(bound);
            column->addWidget(box);
            placed.insert(key);
            continue;
        }
        if (control.index >= 0 && wizardRowOf(key).empty()) {
            const std::size_t grid = gridOf.at(control.name);
            if (gridsPlaced.insert(grid).second) {
                std::vector<std::string> gridKeys;
                for (const std::string& name : grids[grid]) {
                    gridKeys.insert(gridKeys.end(), members[name].begin(), members[name].end());
                }
                target->addWidget(placeArrays(grids[grid], gridKeys));
                placed.insert(gridKeys.begin(), gridKeys.end());
                // The grid holds the heading of the priorities too.
                if (std::find(grids[grid].begin(), grids[grid].end(), "ICheck2") !=
                    grids[grid].end()) {
                    placed.insert("ILabel1");
                }
            }
            continue;
        }
        const RowPlace beside = wizardBesideRow(control.name);
        if (!beside.array.empty() && members.count(beside.array)) continue;  // the grid has it
        const std::vector<std::string>& row =
            wizardRowOf(key).empty() ? wizardRowOf(control.name) : wizardRowOf(key);
        if (row.empty()) {
            target->addWidget(place(key), 0, takesTheWidth(ref) ? Qt::Alignment() : Qt::AlignLeft);
            placed.insert(key);
            continue;
        }
        auto* line = new QHBoxLayout;
        for (const std::string& member : row) {
            if (!on(member) || placed.count(member)) continue;
            line->addWidget(place(member));
            placed.insert(member);
        }
        line->addStretch();
        target->addLayout(line);
    }
    column->addStretch();
    return panel;
}

QWidget* WizardWindow::placeArrays(const std::vector<std::string>& arrays,
                                   const std::vector<std::string>& keys) {
    auto* grid = new QWidget;
    auto* layout = new QGridLayout(grid);
    layout->setContentsMargins(0, 0, 0, 0);
    std::map<std::string, ControlRef> refs;
    for (const auto& [key, ref] : wizard_.controls().all()) refs.emplace(key, ref);
    const int count = static_cast<int>(keys.size() / arrays.size());
    // A long single array goes in two columns, unless the triggers stand beside its rows.
    const bool triggersBeside = arrays.front() == wizardBesideRow("IOption1").array;
    const int rows = arrays.size() == 1 && count > 8 && !triggersBeside ? (count + 1) / 2 : count;
    int headerRow = 0;
    // The column heading of the interrupt priorities.
    if (refs.count("ILabel1") &&
        std::find(arrays.begin(), arrays.end(), "ICheck2") != arrays.end()) {
        const std::size_t column = static_cast<std::size_t>(
            std::find(arrays.begin(), arrays.end(), "ICheck2") - arrays.begin());
        layout->addWidget(place("ILabel1"), 0, static_cast<int>(column));
        headerRow = 1;
    }
    for (std::size_t a = 0; a < arrays.size(); ++a) {
        for (int i = 0; i < count; ++i) {
            const std::string& key =
                keys[a * static_cast<std::size_t>(count) + static_cast<std::size_t>(i)];
            const int row = headerRow + i % rows;
            const int column = static_cast<int>(a) + (i / rows) * static_cast<int>(arrays.size());
            layout->addWidget(place(key), row, column);
        }
    }
    // The triggers of the external interrupts beside their sources.
    for (const char* name : {"IOption1", "IOption2"}) {
        const RowPlace beside = wizardBesideRow(name);
        if (!refs.count(name) || arrays.front() != beside.array) continue;
        for (int i = 0; i < count; ++i) {
            if (baseOf(refs.at(keys[static_cast<std::size_t>(i)])).index != beside.index) continue;
            layout->addWidget(place(name), headerRow + i, static_cast<int>(arrays.size()));
        }
    }
    layout->setColumnStretch(layout->columnCount(), 1);
    return grid;
}

QWidget* WizardWindow::place(const std::string& key) {
    const ControlRef ref = *wizard_.controls().find(
        key.substr(0, key.find('(')),
        key.find('(') == std::string::npos ? -1 : std::stoi(key.substr(key.find('(') + 1)));
    const Control& control = baseOf(ref);
    auto bound = std::make_unique<Bound>();
    bound->ref = ref;
    const QString name = keyText(key);
    QWidget* widget = nullptr;
    if (auto* const* box = std::get_if<TextBox*>(&ref)) {
        if ((*box)->locked) {
            auto* output = new QLabel;
            output->setWordWrap(true);
            output->setTextInteractionFlags(Qt::TextSelectableByMouse);
            output->setFrameShape(QFrame::StyledPanel);
            output->setMinimumHeight(output->fontMetrics().height() * 2 + 8);
            output->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            widget = output;
        } else {
            auto* field = new QLineEdit;
            const int width = fieldWidth(field, control.name, (*box)->text);
            if (width > 0) {
                field->setFixedWidth(width);
            } else {
                field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QLatin1Char('x')) *
                                       30);
            }
            widget = field;
        }
    } else if (std::holds_alternative<CheckBox*>(ref)) {
        widget = new QCheckBox;
    } else if (auto* const* group = std::get_if<OptionGroup*>(&ref)) {
        widget = new QWidget;
        const bool across = !wizardBesideRow(control.name).array.empty();
        QBoxLayout* layout = across ? static_cast<QBoxLayout*>(new QHBoxLayout(widget))
                                    : static_cast<QBoxLayout*>(new QVBoxLayout(widget));
        layout->setContentsMargins(0, 0, 0, 0);
        auto* exclusive = new QButtonGroup(widget);
        for (std::size_t i = 0; i < (*group)->buttons.size(); ++i) {
            auto* button = new QRadioButton;
            button->setObjectName(name + QStringLiteral("(%1)").arg(i));
            exclusive->addButton(button, static_cast<int>(i));
            layout->addWidget(button);
            bound->buttons.push_back(button);
        }
        if (across) layout->addStretch();
    } else if (auto* const* list = std::get_if<ComboBox*>(&ref)) {
        auto* combo = new QComboBox;
        combo->setEditable((*list)->editable);
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        combo->setMinimumContentsLength(6);
        if ((*list)->editable) combo->setInsertPolicy(QComboBox::NoInsert);
        widget = combo;
    } else if (std::holds_alternative<Slider*>(ref)) {
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setMinimumWidth(200);
        widget = slider;
    } else if (std::holds_alternative<Label*>(ref)) {
        auto* label = new QLabel;
        label->setWordWrap(true);
        widget = label;
    } else if (std::holds_alternative<CommandButton*>(ref)) {
        widget = new QPushButton;
    } else {
        widget = new QGroupBox;
    }
    widget->setObjectName(name);
    bound->widget = widget;

    // The describing text the record leaves to the dialog.
    std::string caption;
    if (auto* const* box = std::get_if<TextBox*>(&ref)) caption = (*box)->label;
    if (caption.empty()) caption = text8(wizardCaptionBeside(chip_, control.name, control.index));
    auto* check = qobject_cast<QCheckBox*>(widget);
    if (check != nullptr || caption.empty()) {
        bound->outer = widget;
        if (check != nullptr) check->setText(fromCp1252(caption));
    } else {
        auto* outer = new QWidget;
        auto* line = new QHBoxLayout(outer);
        line->setContentsMargins(0, 0, 0, 0);
        bound->caption = new QLabel(fromCp1252(caption));
        bound->caption->setBuddy(widget);
        line->addWidget(bound->caption);
        line->addWidget(widget,
                        widget->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed ? 0 : 1);
        if (widget->maximumWidth() < QWIDGETSIZE_MAX) line->addStretch();
        bound->outer = outer;
    }
    Bound& entry = *bound;
    bound_[key] = std::move(bound);
    bindUserActions(entry);
    return entry.outer;
}

void WizardWindow::showControl(Bound& bound) {
    const bool wasSyncing = syncing_;
    syncing_ = true;
    const Control& control = baseOf(bound.ref);
    QWidget* widget = bound.widget;
    const QSignalBlocker block(widget);
    if (auto* const* box = std::get_if<TextBox*>(&bound.ref)) {
        const QString text = fromCp1252((*box)->text);
        if (auto* field = qobject_cast<QLineEdit*>(widget)) {
            if (field->text() != text) field->setText(text);
        } else if (auto* output = qobject_cast<QLabel*>(widget)) {
            output->setText(text);
        }
    } else if (auto* const* check = std::get_if<CheckBox*>(&bound.ref)) {
        auto* checkBox = static_cast<QCheckBox*>(widget);
        checkBox->setChecked((*check)->value != 0);
        if (!(*check)->caption.empty()) checkBox->setText(fromCp1252((*check)->caption));
    } else if (auto* const* group = std::get_if<OptionGroup*>(&bound.ref)) {
        for (std::size_t i = 0; i < bound.buttons.size() && i < (*group)->buttons.size(); ++i) {
            const OptionButton& button = (*group)->buttons[i];
            const QSignalBlocker blockButton(bound.buttons[i]);
            bound.buttons[i]->setText(fromCp1252(button.caption));
            bound.buttons[i]->setEnabled(button.enabled);
            bound.buttons[i]->setVisible(button.visible);
            bound.buttons[i]->setChecked(static_cast<int>(i) == (*group)->selected);
        }
    } else if (auto* const* list = std::get_if<ComboBox*>(&bound.ref)) {
        auto* combo = static_cast<QComboBox*>(widget);
        QStringList items;
        for (const std::string& item : (*list)->items) items << fromCp1252(item);
        QStringList shown;
        for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
        if (items != shown) {
            combo->clear();
            combo->addItems(items);
        }
        if (combo->currentIndex() != (*list)->listIndex) combo->setCurrentIndex((*list)->listIndex);
        if (combo->isEditable() && combo->currentText() != fromCp1252((*list)->text)) {
            combo->setEditText(fromCp1252((*list)->text));
        }
    } else if (auto* const* slider = std::get_if<Slider*>(&bound.ref)) {
        auto* bar = static_cast<QSlider*>(widget);
        bar->setRange((*slider)->minimum, (*slider)->maximum);
        bar->setValue((*slider)->value);
    } else if (auto* const* label = std::get_if<Label*>(&bound.ref)) {
        static_cast<QLabel*>(widget)->setText(fromCp1252((*label)->caption));
    } else if (auto* const* button = std::get_if<CommandButton*>(&bound.ref)) {
        static_cast<QPushButton*>(widget)->setText(fromCp1252((*button)->caption));
    } else if (auto* const* frame = std::get_if<Frame*>(&bound.ref)) {
        static_cast<QGroupBox*>(widget)->setTitle(fromCp1252((*frame)->caption));
    }
    widget->setEnabled(control.enabled);
    if (bound.caption != nullptr) bound.caption->setEnabled(control.enabled);
    widget->setToolTip(fromCp1252(control.toolTip));
    bound.outer->setVisible(control.visible);
    syncing_ = wasSyncing;
}

}  // namespace korvex::gui
