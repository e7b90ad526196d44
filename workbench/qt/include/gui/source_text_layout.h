#pragma once
// The layout of a source window's document. Qt's own document layout moves
// every block below an edit, so a key at the top of a 32,000-line source
// costs milliseconds; this one keeps each block's height in a sum tree and
// lays out only the blocks that are drawn or asked for, so an edit costs
// the same wherever it is. It keeps what the workbench uses of a paragraph:
// tab stops, left margin and first-line indent, wrapping at the page width,
// character formats and the bookmark pictures.

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QTextObjectInterface>
#include <vector>

class QTextBlock;

namespace korvex::gui {

class SourceTextLayout : public QAbstractTextDocumentLayout, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

  public:
    explicit SourceTextLayout(QTextDocument* document);

    void draw(QPainter* painter, const PaintContext& context) override;
    int hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame* frame) const override;
    QRectF blockBoundingRect(const QTextBlock& block) const override;

    // The bookmark pictures, drawn from the document's image resources.
    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                    const QTextFormat& format) override;

  protected:
    void documentChanged(int position, int charsRemoved, int charsAdded) override;

  private:
    // Heights of the blocks by number, and their running sums.
    class HeightTree {
      public:
        void reset(std::size_t count, double height);
        void set(std::size_t block, double height);
        double height(std::size_t block) const { return heights_[block]; }
        double before(std::size_t block) const;  // sum of the heights of the blocks before
        double total() const { return before(heights_.size()); }
        std::size_t size() const { return heights_.size(); }
        // The block that holds offset `y` from the top of the first one.
        std::size_t blockAt(double y) const;
        void insert(std::size_t at, std::size_t count, double height);
        void erase(std::size_t at, std::size_t count);

      private:
        void rebuild();
        std::vector<double> heights_;
        std::vector<double> tree_;  // Fenwick sums, 1-based
    };

    static QImage pictureOf(QTextDocument* document, const QTextFormat& format);
    double pageWidth() const;
    double margin() const;
    double estimatedHeight() const;
    // Lays the block out if it isn't, and keeps its height.
    void ensureLaidOut(const QTextBlock& block) const;
    void layBlockOut(const QTextBlock& block) const;
    double topOf(int blockNumber) const;
    QTextBlock blockAtY(double y) const;
    void sizeMayHaveChanged() const;

    mutable HeightTree heights_;
    mutable double lastReportedHeight_ = -1;
    mutable bool sizeReportPending_ = false;
    double lastWidth_ = -1;
};

}  // namespace korvex::gui
