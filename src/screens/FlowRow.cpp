#include "screens/FlowRow.h"

#include <QWidget>
#include <algorithm>

#include "screens/Theme.h"

namespace norlaplan {

FlowRow::FlowRow() {
    setSpacing(theme::kGap);
    setContentsMargins(0, 0, 0, 0);
}

FlowRow::~FlowRow() {
    qDeleteAll(items_);
}

QLayoutItem* FlowRow::takeAt(int index) {
    return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

int FlowRow::widthOf(const Row& row) const {
    int width = -spacing();
    for (const QLayoutItem* const item : row)
        width += item->sizeHint().width() + spacing();
    return std::max(0, width);
}

int FlowRow::heightOf(const Row& row) {
    int height = 0;
    for (const QLayoutItem* const item : row)
        height = std::max(height, item->sizeHint().height());
    return height;
}

QList<FlowRow::Row> FlowRow::rowsFor(int width) const {
    QList<Row> rows = {Row{}};
    for (QLayoutItem* const item : items_) {
        if (item->isEmpty()) continue;
        Row longer = rows.last();
        longer.append(item);
        if (!rows.last().isEmpty() && widthOf(longer) > width)
            rows.append(Row{item});
        else
            rows.last() = longer;
    }
    return rows;
}

int FlowRow::heightForWidth(int width) const {
    int height = -spacing();
    for (const Row& row : rowsFor(width))
        height += heightOf(row) + spacing();
    return std::max(0, height);
}

QSize FlowRow::sizeHint() const {
    Row shown;
    std::copy_if(items_.begin(), items_.end(), std::back_inserter(shown),
                 [](const QLayoutItem* item) { return !item->isEmpty(); });
    return {widthOf(shown), heightOf(shown)};
}

QSize FlowRow::minimumSize() const {
    QSize size;
    for (const QLayoutItem* const item : items_) {
        if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
    }
    return size;
}

void FlowRow::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    int top = rect.top();
    for (const Row& row : rowsFor(rect.width())) {
        const int spare = std::max(0, rect.width() - widthOf(row));
        const int more = filled_ ? spare / std::max(1, static_cast<int>(row.size())) : 0;
        int left = rect.left() + (filled_ ? 0 : spare);
        for (QLayoutItem* const item : row) {
            QSize size = item->sizeHint();
            if (filled_) size = {std::min(size.width() + more, rect.width()), heightOf(row)};
            const bool apart = firstApart_ && item == items_.constFirst();
            item->setGeometry(QRect(QPoint(apart ? rect.left() : left, top), size));
            left += size.width() + spacing();
        }
        top += heightOf(row) + spacing();
    }
}

}  // namespace norlaplan
