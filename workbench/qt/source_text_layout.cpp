#include "gui/source_text_layout.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextObjectInterface>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cmath>

namespace korvex::gui {

// --- the bookmark pictures: images the document holds as resources ---

QImage SourceTextLayout::pictureOf(QTextDocument* document, const QTextFormat& format) {
    return document->resource(QTextDocument::ImageResource, QUrl(format.toImageFormat().name()))
        .value<QImage>();
}

QSizeF SourceTextLayout::intrinsicSize(QTextDocument* document, int, const QTextFormat& format) {
    return pictureOf(document, format).size();
}

void SourceTextLayout::drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document,
                                  int, const QTextFormat& format) {
    painter->drawImage(rect, pictureOf(document, format));
}

// --- the sum tree ---

void SourceTextLayout::HeightTree::reset(std::size_t count, double height) {
    heights_.assign(count, height);
    rebuild();
}

void SourceTextLayout::HeightTree::rebuild() {
    tree_.assign(heights_.size() + 1, 0.0);
    for (std::size_t index = 1; index <= heights_.size(); ++index) {
        tree_[index] += heights_[index - 1];
        const std::size_t parent = index + (index & (~index + 1));
        if (parent <= heights_.size()) tree_[parent] += tree_[index];
    }
}

void SourceTextLayout::HeightTree::set(std::size_t block, double height) {
    const double change = height - heights_[block];
    if (change == 0) return;
    heights_[block] = height;
    for (std::size_t index = block + 1; index < tree_.size(); index += index & (~index + 1))
        tree_[index] += change;
}

double SourceTextLayout::HeightTree::before(std::size_t block) const {
    double sum = 0;
    for (std::size_t index = std::min(block, heights_.size()); index > 0;
         index -= index & (~index + 1))
        sum += tree_[index];
    return sum;
}

std::size_t SourceTextLayout::HeightTree::blockAt(double y) const {
    // Descends the tree: the last block whose top is at or above y.
    std::size_t position = 0;
    std::size_t step = 1;
    while (step * 2 <= heights_.size()) step *= 2;
    for (; step > 0; step /= 2) {
        if (position + step <= heights_.size() && tree_[position + step] <= y) {
            position += step;
            y -= tree_[position];
        }
    }
    return std::min(position, heights_.empty() ? 0 : heights_.size() - 1);
}

void SourceTextLayout::HeightTree::insert(std::size_t at, std::size_t count, double height) {
    heights_.insert(heights_.begin() + static_cast<std::ptrdiff_t>(std::min(at, heights_.size())),
                    count, height);
    rebuild();
}

void SourceTextLayout::HeightTree::erase(std::size_t at, std::size_t count) {
    at = std::min(at, heights_.size());
    count = std::min(count, heights_.size() - at);
    heights_.erase(heights_.begin() + static_cast<std::ptrdiff_t>(at),
                   heights_.begin() + static_cast<std::ptrdiff_t>(at + count));
    rebuild();
}

// --- the layout ---

SourceTextLayout::SourceTextLayout(QTextDocument* document)
    : QAbstractTextDocumentLayout(document) {
    registerHandler(QTextFormat::ImageObject, this);
    heights_.reset(static_cast<std::size_t>(document->blockCount()), estimatedHeight());
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        block.clearLayout();
}

double SourceTextLayout::pageWidth() const {
    return document()->pageSize().width();
}

double SourceTextLayout::margin() const {
    return document()->documentMargin();
}

// A block not laid out yet counts as one line of the document's font.
double SourceTextLayout::estimatedHeight() const {
    return std::ceil(QFontMetricsF(document()->defaultFont()).lineSpacing());
}

void SourceTextLayout::ensureLaidOut(const QTextBlock& block) const {
    if (!block.isValid()) return;
    const QTextLayout* layout = block.layout();
    if (layout == nullptr || layout->lineCount() == 0) layBlockOut(block);
}

void SourceTextLayout::layBlockOut(const QTextBlock& block) const {
    QTextLayout* layout = block.layout();
    const QTextBlockFormat format = block.blockFormat();
    QTextOption option = document()->defaultTextOption();
    option.setTabs(format.tabPositions());
    option.setTextDirection(Qt::LeftToRight);
    const double width = pageWidth();
    if (width <= 0) option.setWrapMode(QTextOption::ManualWrap);
    layout->setTextOption(option);
    layout->setPosition(QPointF(0, 0));

    const double left = margin() + format.leftMargin();
    const double available = width - 2 * margin() - format.leftMargin() - format.rightMargin();
    double y = 0;
    bool first = true;
    layout->beginLayout();
    while (true) {
        QTextLine line = layout->createLine();
        if (!line.isValid()) break;
        line.setLeadingIncluded(true);
        const double indent = first ? format.textIndent() : 0;
        // Without a page width, lines end only at the paragraph's end.
        line.setLineWidth(width > 0 ? std::max(available - indent, 1.0) : 1e6);
        line.setPosition(QPointF(left + indent, y));
        y += line.height();
        first = false;
    }
    layout->endLayout();
    const auto number = static_cast<std::size_t>(block.blockNumber());
    if (number < heights_.size()) heights_.set(number, std::max(y, 1.0));
    sizeMayHaveChanged();
}

double SourceTextLayout::topOf(int blockNumber) const {
    return margin() + heights_.before(static_cast<std::size_t>(std::max(blockNumber, 0)));
}

// The block at `y`, laid out, its place settled by the heights it found.
QTextBlock SourceTextLayout::blockAtY(double y) const {
    QTextBlock block = document()->findBlockByNumber(
        static_cast<int>(heights_.blockAt(std::max(y - margin(), 0.0))));
    for (int step = 0; step < 64 && block.isValid(); ++step) {
        ensureLaidOut(block);
        const double top = topOf(block.blockNumber());
        const double bottom = top + heights_.height(static_cast<std::size_t>(block.blockNumber()));
        if (y < top && block.previous().isValid()) {
            block = block.previous();
        } else if (y >= bottom && block.next().isValid()) {
            block = block.next();
        } else {
            break;
        }
    }
    return block;
}

QSizeF SourceTextLayout::documentSize() const {
    const double width = pageWidth() > 0 ? pageWidth() : 0;
    return {width, heights_.total() + 2 * margin()};
}

QRectF SourceTextLayout::frameBoundingRect(QTextFrame*) const {
    return {QPointF(0, 0), documentSize()};
}

QRectF SourceTextLayout::blockBoundingRect(const QTextBlock& block) const {
    if (!block.isValid() || block.blockNumber() >= static_cast<int>(heights_.size())) return {};
    ensureLaidOut(block);
    const double width = pageWidth() > 0 ? pageWidth() : block.layout()->maximumWidth();
    return {0, topOf(block.blockNumber()), width,
            heights_.height(static_cast<std::size_t>(block.blockNumber()))};
}

int SourceTextLayout::hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const {
    const QTextBlock block = blockAtY(point.y());
    if (!block.isValid()) return -1;
    const QTextLayout* layout = block.layout();
    const double y = point.y() - topOf(block.blockNumber());
    for (int index = 0; index < layout->lineCount(); ++index) {
        const QTextLine line = layout->lineAt(index);
        if (y < line.y() + line.height() || index + 1 == layout->lineCount()) {
            const int at = line.xToCursor(point.x(), QTextLine::CursorBetweenCharacters);
            if (accuracy == Qt::ExactHit &&
                (point.x() < line.x() || point.x() > line.x() + line.naturalTextWidth()))
                return -1;
            return block.position() + at;
        }
    }
    return block.position();
}

void SourceTextLayout::draw(QPainter* painter, const PaintContext& context) {
    const QRectF clip =
        context.clip.isValid() ? context.clip : QRectF(QPointF(0, 0), documentSize());
    const int cursorWidth = std::max(property("cursorWidth").toInt(), 1);
    painter->save();
    painter->setPen(context.palette.text().color());
    for (QTextBlock block = blockAtY(clip.top()); block.isValid(); block = block.next()) {
        ensureLaidOut(block);
        const double top = topOf(block.blockNumber());
        if (top > clip.bottom()) break;
        QList<QTextLayout::FormatRange> selections;
        const int start = block.position();
        const int length = block.length();
        for (const Selection& selection : context.selections) {
            const int from = selection.cursor.selectionStart() - start;
            const int to = selection.cursor.selectionEnd() - start;
            if (from < length && to > 0 && to > from) {
                QTextLayout::FormatRange range;
                range.start = std::max(from, 0);
                range.length = std::min(to, length) - range.start;
                range.format = selection.format;
                selections.append(range);
            }
        }
        QTextLayout* layout = block.layout();
        layout->draw(painter, QPointF(0, top), selections, clip);
        if (context.cursorPosition >= start && context.cursorPosition < start + length)
            layout->drawCursor(painter, QPointF(0, top), context.cursorPosition - start,
                               cursorWidth);
    }
    painter->restore();
}

void SourceTextLayout::documentChanged(int position, int charsRemoved, int charsAdded) {
    QTextDocument* doc = document();
    const auto count = static_cast<std::size_t>(doc->blockCount());
    const bool whole = position == 0 && charsAdded >= doc->characterCount() - 1;
    const bool newWidth = pageWidth() != lastWidth_;
    lastWidth_ = pageWidth();
    if (whole || newWidth || heights_.size() == 0) {
        // A new text or a new width: nothing laid out stands.
        heights_.reset(count, estimatedHeight());
        for (QTextBlock block = doc->begin(); block.isValid(); block = block.next())
            block.clearLayout();
    } else {
        const QTextBlock first = doc->findBlock(position);
        const QTextBlock last = doc->findBlock(std::max(position + charsAdded, position));
        const auto firstNumber = static_cast<std::size_t>(std::max(first.blockNumber(), 0));
        // Blocks came or went behind the first one changed.
        if (count > heights_.size())
            heights_.insert(firstNumber + 1, count - heights_.size(), estimatedHeight());
        else if (count < heights_.size())
            heights_.erase(firstNumber + 1, heights_.size() - count);
        for (QTextBlock block = first; block.isValid(); block = block.next()) {
            block.clearLayout();
            heights_.set(static_cast<std::size_t>(block.blockNumber()), estimatedHeight());
            if (block == last) break;
        }
    }
    (void)charsRemoved;
    sizeMayHaveChanged();
    emit update(QRectF(0, 0, 1e9, 1e9));
}

// The size goes out once the present work is done: a report from inside a
// paint would make the widget lay out and paint again within it.
void SourceTextLayout::sizeMayHaveChanged() const {
    if (sizeReportPending_) return;
    sizeReportPending_ = true;
    QTimer::singleShot(0, this, [this] {
        sizeReportPending_ = false;
        const double height = heights_.total();
        if (height == lastReportedHeight_) return;
        lastReportedHeight_ = height;
        emit const_cast<SourceTextLayout*>(this)->documentSizeChanged(documentSize());
    });
}

}  // namespace korvex::gui
