#include "gui/insert_line_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "gui/qt_text.h"

namespace korvex::gui {
namespace {

QPushButton* button(const QString& caption, const char* name) {
    auto* made = new QPushButton(caption);
    made->setObjectName(QString::fromLatin1(name));
    return made;
}

}  // namespace

InsertLineDialog::InsertLineDialog(Kind kind, Services services, QWidget* parent)
    : QDialog(parent, Qt::Tool), kind_(kind), services_(std::move(services)) {
    const bool include = kind_ == Kind::Include;
    setObjectName(include ? QStringLiteral("IncludeFrm") : QStringLiteral("Partoffrm"));
    setWindowTitle(include ? QStringLiteral("Include-Datei einfügen")
                           : QStringLiteral("Projektdatei einfügen"));
    setModal(false);
    setAttribute(Qt::WA_DeleteOnClose);

    auto* note =
        new QLabel(include ? QStringLiteral("Fügt den Namen einer Include-Datei ein.")
                           : QStringLiteral("Fügt den Projektnamen in Include-Dateien ein."));
    note->setObjectName(QStringLiteral("Label1"));
    text_ = new QLineEdit(include ? QStringLiteral("#Include") : QStringLiteral("#Part of "));
    text_->setObjectName(QStringLiteral("Text1"));
    text_->setMinimumWidth(380);
    QPushButton* choose = button(QStringLiteral("&Auswählen"), "Command1");
    QPushButton* insert = button(QStringLiteral("&Einfügen"), "Command3");
    QPushButton* close = button(QStringLiteral("&Schließen"), "Command2");
    QPushButton* help = button(QStringLiteral("&Hilfe"), "Command4");

    connect(choose, &QPushButton::clicked, this, [this, include] {
        if (!services_.chooseFile) return;
        const std::string name =
            services_.chooseFile(toCp1252(include ? QStringLiteral("Include-Datei öffnen")
                                                  : QStringLiteral("Main-Datei öffnen")));
        if (name.empty()) return;  // cancelled: the line stays as it was
        text_->setText((include ? QStringLiteral("#Include '") : QStringLiteral("#Part of '")) +
                       fromCp1252(name) + QLatin1Char('\''));
    });
    connect(insert, &QPushButton::clicked, this, [this] {
        // Through the clipboard, as the original does: its old content goes.
        QApplication::clipboard()->setText(text_->text());
        if (services_.pasteAtCaret) services_.pasteAtCaret();
    });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(help, &QPushButton::clicked, this, [this] {
        if (services_.help) services_.help();
    });

    auto* layout = new QGridLayout(this);
    layout->addWidget(note, 0, 0, 1, 4);
    layout->addWidget(text_, 1, 0, 1, 4);
    layout->addWidget(choose, 2, 0);
    layout->addWidget(insert, 2, 1);
    layout->addWidget(close, 2, 2);
    layout->addWidget(help, 2, 3);
}

}  // namespace korvex::gui
