#include "gui/controller_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/colour_map.h"
#include "gui/qt_text.h"

namespace korvex::gui {

ControllerDialog::ControllerDialog(const std::vector<std::string>& controllers,
                                   const std::string& current, std::int32_t background,
                                   QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmControllerwahl"));
    setWindowTitle(QStringLiteral("Controllerwahl"));
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, toQColor(background, QApplication::palette()));
    setPalette(palette);

    auto* note =
        new QLabel(QStringLiteral("Die Information des Controllertyps wird für das "
                                  "Hilfesystem und den Disassembler benötigt."));
    note->setObjectName(QStringLiteral("Label1"));
    note->setWordWrap(true);
    combo_ = new QComboBox;
    combo_->setObjectName(QStringLiteral("Combo1"));
    combo_->setEditable(true);
    for (const std::string& name : controllers) combo_->addItem(fromCp1252(name));
    combo_->setEditText(fromCp1252(current));

    auto* ok = new QPushButton(QStringLiteral("&Ok"));
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("&Abbrechen"));
    cancel->setObjectName(QStringLiteral("Command2"));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(note);
    layout->addWidget(combo_);
    layout->addLayout(buttons);
    resize(360, sizeHint().height());
}

std::string ControllerDialog::chosen() const {
    return toCp1252(combo_->currentText());
}

}  // namespace korvex::gui
