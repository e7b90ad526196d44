#pragma once
// SetupImage: a small picture of what a choice on the editor page does.

#include <QWidget>

class QPainter;

namespace korvex::gui {

class SetupImage : public QWidget {
    Q_OBJECT

  public:
    enum class Subject { Windows, Wrapping, Bookmarks };
    SetupImage(Subject subject, QWidget* parent = nullptr);

    // Two windows, a hanging indent, bookmarks in use.
    void setChoice(bool on);
    // Wrapping at the window's edge; only for Wrapping.
    void setWrapAtEdge(bool atEdge);
    QSize sizeHint() const override { return {96, 60}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintWindows(QPainter& painter, const QRect& area) const;
    void paintWrapping(QPainter& painter, const QRect& area) const;
    void paintBookmarks(QPainter& painter, const QRect& area) const;

    Subject subject_;
    bool on_ = false;
    bool wrapAtEdge_ = true;
};

}  // namespace korvex::gui
