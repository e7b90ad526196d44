#include "gui/extensions_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "gui/colour_map.h"
#include "gui/qt_text.h"
#include "workbench/captions.h"
#include "workbench/settings_file.h"

namespace korvex::gui {
namespace {

std::array<std::string*, 6> extensionsOf(Settings& settings) {
    return {&settings.sourceExtension, &settings.listingExtension,     &settings.binaryExtension,
            &settings.hexExtension,    &settings.disassemblyExtension, &settings.symbolExtension};
}

QPushButton* button(const QString& name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    return button;
}

}  // namespace

ExtensionsDialog::ExtensionsDialog(Settings& settings, Host& host, QWidget* parent)
    : QDialog(parent), settings_(settings), host_(host) {
    setObjectName(QStringLiteral("frmEndungen"));
    setWindowTitle(QStringLiteral("Dateiendungen"));
    QPalette background = palette();
    background.setColor(QPalette::Window,
                        toQColor(settings.Colours[kComparisonBackground], palette()));
    setPalette(background);
    setAutoFillBackground(true);

    const QString labels[] = {QStringLiteral("&Programmcode"),  QStringLiteral("&Listing"),
                              QStringLiteral("&Binärcode"),     QStringLiteral("Hex&code"),
                              QStringLiteral("&Disassembling"), QStringLiteral("Sy&mboldatei")};
    auto* grid = new QGridLayout;
    const std::array<std::string*, 6> extensions = extensionsOf(settings_);
    for (int i = 0; i < 6; ++i) {
        auto* field = new QLineEdit(fromCp1252(*extensions[static_cast<std::size_t>(i)]), this);
        field->setObjectName(QStringLiteral("Text%1").arg(i + 1));
        field->setMaxLength(32);
        // Quotes, commas and path separators have no place in korvex.cfg's extensions.
        field->setValidator(new QRegularExpressionValidator(
            QRegularExpression(QStringLiteral("[^\"/\\\\,]*")), field));
        auto* label = new QLabel(labels[i], this);
        label->setBuddy(field);
        grid->addWidget(label, i, 0);
        grid->addWidget(field, i, 1);
        fields_[static_cast<std::size_t>(i)] = field;
    }

    QPushButton* ok = button(QStringLiteral("Command1"), QStringLiteral("&Ok"), this);
    QPushButton* cancel = button(QStringLiteral("Command2"), QStringLiteral("&Abbrechen"), this);
    QPushButton* defaults = button(QStringLiteral("Command3"), QStringLiteral("&Standard"), this);
    QPushButton* help = button(QStringLiteral("Command4"), QStringLiteral("&Hilfe"), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &ExtensionsDialog::store);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(defaults, &QPushButton::clicked, this, &ExtensionsDialog::putDefaults);
    connect(help, &QPushButton::clicked, this, [this] {
        if (help_) {
            help_();
            return;
        }
        host_.messageBox(std::string(kMainCaption),
                         toCp1252(QStringLiteral("Die Hilfe ist in dieser Version noch nicht "
                                                 "verfügbar.")),
                         MessageButtons::Ok, MessageIcon::Information);
    });

    auto* buttons = new QVBoxLayout;
    for (QPushButton* each : {ok, cancel, defaults, help}) buttons->addWidget(each);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(grid);
    layout->addSpacing(12);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ExtensionsDialog::store() {
    Settings changed = settings_;
    const std::array<std::string*, 6> extensions = extensionsOf(changed);
    for (std::size_t i = 0; i < 6; ++i) *extensions[i] = toCp1252(fields_[i]->text().trimmed());
    // Extensions that korvex.cfg can't keep would spoil the next start.
    if (const std::string problem = extensionProblem(changed); !problem.empty()) {
        host_.messageBox("Dateiendungen", problem, MessageButtons::Ok, MessageIcon::Exclamation);
        return;
    }
    settings_ = changed;
    accept();
}

void ExtensionsDialog::putDefaults() {
    Settings defaults;
    const std::array<std::string*, 6> extensions = extensionsOf(defaults);
    for (std::size_t i = 0; i < 6; ++i) fields_[i]->setText(fromCp1252(*extensions[i]));
}

}  // namespace korvex::gui
