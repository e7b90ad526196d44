#include "gui/help_window.h"

#include <QFileInfo>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include "workbench/help_pages.h"

namespace korvex::gui {

HelpWindow::HelpWindow(std::string programFolder, QWidget* parent)
    : QWidget(parent, Qt::Window), programFolder_(std::move(programFolder)) {
    setObjectName(QStringLiteral("frmHilfe"));
    setWindowTitle(QStringLiteral("Korvex-Hilfe"));
    browser_ = new QTextBrowser(this);
    browser_->setObjectName(QStringLiteral("HilfeText"));
    browser_->setOpenLinks(true);
    auto* bar = new QToolBar(this);
    QAction* contents = bar->addAction(QStringLiteral("Inhalt"));
    QAction* back = bar->addAction(QStringLiteral("Zurück"));
    QAction* forward = bar->addAction(QStringLiteral("Vor"));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QAction::triggered, this, [this] {
        HelpRequest request;
        request.file = std::string(kMainHelpFile);
        show(request);
    });
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
        setWindowTitle(QStringLiteral("Korvex-Hilfe – ") + browser_->documentTitle());
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(browser_);
    resize(720, 600);
}

bool HelpWindow::show(const HelpRequest& request) {
    const QString path = QString::fromStdString(HelpPagePath(programFolder_, request));
    if (!QFileInfo::exists(path)) return false;
    browser_->setSource(QUrl::fromLocalFile(path));
    QWidget::show();
    raise();
    activateWindow();
    return true;
}

}  // namespace korvex::gui
