#pragma once
// frmBefehle: the instruction set at a glance, one tab per group of
// instructions; a double click opens the instruction's help page. Its place
// and its tab are kept in the settings.

#include <QWidget>
#include <functional>
#include <string>

class QTabWidget;

namespace korvex::gui {

class ReferenceWindow : public QWidget {
    Q_OBJECT

  public:
    ReferenceWindow(int tab, std::function<void(const std::string&)> help, QWidget* parent);

    QTabWidget* tabs() const { return tabs_; }

  signals:
    // Where it was and which tab it showed, when it closes.
    void closing(const QPoint& place, int tab);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QTabWidget* tabs_ = nullptr;
    std::function<void(const std::string&)> help_;
};

}  // namespace korvex::gui
