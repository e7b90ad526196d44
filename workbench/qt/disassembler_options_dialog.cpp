#include "gui/disassembler_options_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace korvex::gui {

DisassemblerOptionsDialog::DisassemblerOptionsDialog(DisassemblerOptions& options,
                                                     std::function<void(int)> help, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmDisassKonfig"));
    setWindowTitle(QStringLiteral("Disassembler Konfiguration"));
    auto* layout = new QVBoxLayout(this);
    auto* intro = new QLabel(
        QStringLiteral("Mit diesen Optionen bestimmen Sie das Verhalten des Disassemblers."));
    intro->setWordWrap(true);
    layout->addWidget(intro);

    auto* sort = new QCheckBox(QStringLiteral("Adressen im Hex-File sortieren"));
    sort->setObjectName(QStringLiteral("ChkAdresSort"));
    sort->setChecked(options.sortAddresses);
    layout->addWidget(sort);
    auto* note = new QLabel(
        QStringLiteral("Kann bei Hex-Files erforderlich sein, die mit C erzeugt wurden."));
    note->setIndent(22);
    layout->addWidget(note);
    connect(sort, &QCheckBox::toggled, this, [&options](bool on) { options.sortAddresses = on; });

    auto* output = new QGroupBox(QStringLiteral("Ausgabe"));
    auto* outputLayout = new QVBoxLayout(output);
    auto* group = new QButtonGroup(this);
    const QString captions[] = {
        QStringLiteral("Disassembling ohne Adressen, ohne OpCodes, mit Labels"),
        QStringLiteral("Disassembling mit Adressen, mit OpCodes, ohne Labels")};
    for (int index = 0; index < 2; ++index) {
        auto* option = new QRadioButton(captions[index]);
        option->setObjectName(QStringLiteral("OptOhneLabel_%1").arg(index));
        option->setChecked(options.withLabels == (index == 0));
        group->addButton(option, index);
        outputLayout->addWidget(option);
    }
    connect(group, &QButtonGroup::idToggled, this, [&options](int index, bool on) {
        if (on) options.withLabels = index == 0;
    });
    layout->addWidget(output);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* helpButton = new QPushButton(QStringLiteral("&Hilfe"));
    helpButton->setObjectName(QStringLiteral("Command1_0"));
    connect(helpButton, &QPushButton::clicked, this, [help] {
        if (help) help(kHelpTopic);
    });
    buttons->addWidget(helpButton);
    auto* close = new QPushButton(QStringLiteral("&Schließen"));
    close->setObjectName(QStringLiteral("Command1_1"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    buttons->addWidget(close);
    layout->addLayout(buttons);
}

}  // namespace korvex::gui
