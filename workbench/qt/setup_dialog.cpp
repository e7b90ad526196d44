#include "gui/setup_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "gui/colour_map.h"
#include "gui/command_toolbar.h"
#include "gui/qt_text.h"
#include "gui/setup_image.h"
#include "workbench/captions.h"
#include "workbench/colours.h"

namespace korvex::gui {
namespace {

template <typename Widget>
Widget* named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

QString indexed(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(index);
}

// A pair of choices side by side with the picture of their effect.
QGroupBox* choiceGroup(const QString& title, QWidget* first, QWidget* second, QWidget* extra,
                       SetupImage* image) {
    auto* group = new QGroupBox(title);
    auto* choices = new QVBoxLayout;
    choices->addWidget(first);
    choices->addWidget(second);
    if (extra != nullptr) choices->addWidget(extra);
    auto* row = new QHBoxLayout(group);
    row->addLayout(choices, 1);
    row->addWidget(image);
    return group;
}

}  // namespace

SetupDialog::SetupDialog(Settings& settings, Host& host, CommandToolbar& toolbar, QWidget* parent)
    : QDialog(parent),
      settings_(settings),
      host_(host),
      toolbar_(toolbar),
      noted_(toolbar.state()),
      colours_(settings.Colours) {
    setObjectName(QStringLiteral("FrmSetup"));
    setWindowTitle(QStringLiteral("Einstellungen"));

    pages_ = named(new QTabWidget(this), QStringLiteral("SetupTabStrip1"));
    pages_->addTab(toolbarPage(), QStringLiteral("&Toolbar"));
    pages_->addTab(coloursPage(), QStringLiteral("&Farben"));
    pages_->addTab(editorPage(), QStringLiteral("&Editor"));

    auto* apply =
        named(new QPushButton(QStringLiteral("Ü&bernehmen")), QStringLiteral("SetupCommand1"));
    auto* cancel =
        named(new QPushButton(QStringLiteral("&Abbrechen")), QStringLiteral("SetupCommand2"));
    auto* help = named(new QPushButton(QStringLiteral("Hilfe")), QStringLiteral("SetupHelpCmd"));
    apply->setDefault(true);
    connect(apply, &QPushButton::clicked, this, &SetupDialog::apply);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(help, &QPushButton::clicked, this, [this] {
        if (help_) {
            help_();
            return;
        }
        host_.messageBox(std::string(kMainCaption),
                         toCp1252(QStringLiteral("Die Hilfe zur Seite „%1“ ist in dieser Version "
                                                 "noch nicht verfügbar.")
                                      .arg(pages_->tabText(pages_->currentIndex()).remove('&'))),
                         MessageButtons::Ok, MessageIcon::Information);
    });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* each : {apply, cancel, help}) buttons->addWidget(each);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    layout->addLayout(buttons);
}

QWidget* SetupDialog::toolbarPage() {
    auto* page = named(new QFrame, indexed("SetupFrame", 0));
    auto* positionBox = new QGroupBox(QStringLiteral("Position"));
    position_ = named(new QSlider(Qt::Horizontal), QStringLiteral("SetupSlider1"));
    position_->setRange(0, 3);
    position_->setPageStep(1);
    position_->setTickPosition(QSlider::TicksBelow);
    position_->setValue(std::clamp(noted_.align, 1, 4) - 1);
    // Six equal columns put the middle labels under the ticks at a third and two thirds.
    auto* ticks = new QGridLayout;
    const QString places[] = {QStringLiteral(" oben "), QStringLiteral(" unten "),
                              QStringLiteral(" links "), QStringLiteral(" rechts ")};
    const int columns[] = {0, 1, 3, 5};
    for (int i = 0; i < 4; ++i) {
        auto* label = named(new QLabel(places[i]), indexed("SetupLabel1", i));
        label->setAlignment(i == 0 ? Qt::AlignLeft : i == 3 ? Qt::AlignRight : Qt::AlignHCenter);
        ticks->addWidget(label, 0, columns[i], 1, i == 0 || i == 3 ? 1 : 2);
    }
    for (int column = 0; column < 6; ++column) ticks->setColumnStretch(column, 1);
    auto* positionLayout = new QVBoxLayout(positionBox);
    positionLayout->addWidget(position_);
    positionLayout->addLayout(ticks);

    auto* styleBox = new QGroupBox(QStringLiteral("Aussehen"));
    flat_ = named(new QRadioButton(QStringLiteral("flach")), indexed("SetupOption1", 0));
    auto* raised = named(new QRadioButton(QStringLiteral("normal")), indexed("SetupOption1", 1));
    (noted_.flat ? flat_ : raised)->setChecked(true);
    auto* styleLayout = new QVBoxLayout(styleBox);
    styleLayout->addWidget(flat_);
    styleLayout->addWidget(raised);

    visible_ = named(new QCheckBox(QStringLiteral("sichtbar")), QStringLiteral("SetupCheck1"));
    visible_->setChecked(noted_.visible);

    connect(position_, &QSlider::valueChanged, this, &SetupDialog::toolbarChanged);
    connect(flat_, &QRadioButton::toggled, this, &SetupDialog::toolbarChanged);
    connect(visible_, &QCheckBox::toggled, this, &SetupDialog::toolbarChanged);

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(positionBox);
    layout->addWidget(styleBox);
    layout->addWidget(visible_);
    layout->addStretch();
    return page;
}

QWidget* SetupDialog::coloursPage() {
    auto* page = named(new QFrame, indexed("SetupFrame", 1));
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(4);
    for (int i = 0; i < static_cast<int>(kColourCount); ++i) {
        auto* swatch = named(new QToolButton, indexed("SetupFarbe", i));
        swatch->setFixedSize(44, 20);
        swatch->setToolTip(QStringLiteral("Farbe wählen"));
        connect(swatch, &QToolButton::clicked, this, [this, i] { chooseColour(i); });
        swatches_[static_cast<std::size_t>(i)] = swatch;
        auto* label = named(new QLabel(fromCp1252(colourLabel(i))), indexed("SetupLabel2", i));
        grid->addWidget(swatch, i, 0);
        grid->addWidget(label, i, 1);
        setColour(i, colours_[static_cast<std::size_t>(i)]);
    }
    grid->setColumnStretch(1, 1);
    auto* defaults = named(new QPushButton(QStringLiteral("Standard&farben wählen")),
                           QStringLiteral("SetupCommand3"));
    connect(defaults, &QPushButton::clicked, this, [this] {
        for (int i = 0; i < static_cast<int>(kColourCount); ++i)
            setColour(i, kDefaultColours[static_cast<std::size_t>(i)]);
        Settings shown = settings_;
        shown.Colours = colours_;
        emit coloursChanged(shown);
    });
    auto* layout = new QVBoxLayout(page);
    layout->addLayout(grid);
    layout->addWidget(defaults, 0, Qt::AlignLeft);
    layout->addStretch();
    return page;
}

QWidget* SetupDialog::editorPage() {
    auto* page = named(new QFrame, indexed("SetupFrame", 2));

    twoWindows_ =
        named(new QRadioButton(QStringLiteral("Zwei Fenster")), indexed("SetupOption2", 0));
    auto* oneWindow =
        named(new QRadioButton(QStringLiteral("Ein Fenster")), indexed("SetupOption2", 1));
    (settings_.TwoWindowsAtStart != 0 ? twoWindows_ : oneWindow)->setChecked(true);
    auto* windowsImage = new SetupImage(SetupImage::Subject::Windows);

    hanging_ =
        named(new QRadioButton(QStringLiteral("Lange Absätze beim Umbruch           einrücken")),
              indexed("SetupOption3", 0));
    auto* flush =
        named(new QRadioButton(QStringLiteral("Lange Absätze beim Umbruch nicht einrücken")),
              indexed("SetupOption3", 1));
    (settings_.HangingIndent ? hanging_ : flush)->setChecked(true);
    noRightWrap_ = named(new QCheckBox(QStringLiteral("Keinen Absatzumbruch rechts vornejmen")),
                         QStringLiteral("SetupChkRightMrgin"));
    noRightWrap_->setChecked(settings_.NoRightWrap);
    auto* wrapImage = new SetupImage(SetupImage::Subject::Wrapping);

    bookmarks_ = named(new QRadioButton(QStringLiteral("Verwenden")), indexed("SetupOption4", 0));
    auto* noBookmarks =
        named(new QRadioButton(QStringLiteral("Nicht verwenden")), indexed("SetupOption4", 1));
    (settings_.BookmarksEnabled ? bookmarks_ : noBookmarks)->setChecked(true);
    auto* bookmarkImage = new SetupImage(SetupImage::Subject::Bookmarks);

    auto showChoices = [=, this] {
        windowsImage->setChoice(twoWindows_->isChecked());
        wrapImage->setChoice(hanging_->isChecked());
        wrapImage->setWrapAtEdge(!noRightWrap_->isChecked());
        bookmarkImage->setChoice(bookmarks_->isChecked());
    };
    showChoices();
    for (QAbstractButton* each :
         std::initializer_list<QAbstractButton*>{twoWindows_, hanging_, noRightWrap_, bookmarks_})
        connect(each, &QAbstractButton::toggled, this, showChoices);

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(
        choiceGroup(QStringLiteral("Beim Start"), twoWindows_, oneWindow, nullptr, windowsImage));
    layout->addWidget(
        choiceGroup(QStringLiteral("Umbruch"), hanging_, flush, noRightWrap_, wrapImage));
    layout->addWidget(choiceGroup(QStringLiteral("Lesezeichen"), bookmarks_, noBookmarks, nullptr,
                                  bookmarkImage));
    layout->addStretch();
    return page;
}

void SetupDialog::toolbarChanged() {
    toolbar_.applyState(
        ToolbarState{position_->value() + 1, flat_->isChecked(), visible_->isChecked()});
}

void SetupDialog::setColour(int index, std::int32_t colour) {
    colours_[static_cast<std::size_t>(index)] = colour;
    const QColor shown = toQColor(colour, palette());
    swatches_[static_cast<std::size_t>(index)]->setStyleSheet(
        QStringLiteral("QToolButton { background: %1; border: 1px solid #404040; }")
            .arg(shown.name()));
}

void SetupDialog::chooseColour(int index) {
    const QColor initial = toQColor(colours_[static_cast<std::size_t>(index)], palette());
    const QColor chosen = QColorDialog::getColor(initial, this);
    if (!chosen.isValid()) return;
    setColour(index, fromQColor(chosen));
    Settings shown = settings_;
    shown.Colours = colours_;
    emit coloursChanged(shown);
}

void SetupDialog::apply() {
    settings_.Colours = colours_;
    settings_.TwoWindowsAtStart = twoWindows_->isChecked() ? 1 : 0;
    const bool wrappingChanged = settings_.HangingIndent != hanging_->isChecked() ||
                                 settings_.NoRightWrap != noRightWrap_->isChecked();
    settings_.HangingIndent = hanging_->isChecked();
    settings_.NoRightWrap = noRightWrap_->isChecked();
    settings_.BookmarksEnabled = bookmarks_->isChecked();
    settings_.toolbar = toolbar_.state();
    applied_ = true;
    emit applied(wrappingChanged, !settings_.BookmarksEnabled);
    accept();
}

void SetupDialog::done(int result) {
    if (!applied_) {
        // Closed without "Übernehmen": the toolbar and the colours as they were.
        toolbar_.applyState(noted_);
        emit coloursChanged(settings_);
    }
    QDialog::done(result);
}

}  // namespace korvex::gui
