#include "screens/HitTable.h"

#include <QHeaderView>
#include <algorithm>

#include "screens/HitModel.h"

namespace norlaplan {
namespace {

constexpr int kFewestRows = 5;
constexpr int kUsualRows = 9;
constexpr int kLeastWidth = 300;
constexpr int kMostBetween = 28;

}  // namespace

HitTable::HitTable(const char* name) : CopyTable(name, QStringLiteral("Bearings that fit, in columns")) {
    setMinimumSize(kLeastWidth, heightFor(kFewestRows));
}

void HitTable::layOutColumns(bool withSpeed, bool withChecks) {
    setColumnHidden(kLineColumn, true);
    setColumnHidden(kHoursColumn, !withSpeed);
    setColumnHidden(kMarkColumn, !withSpeed);
    setColumnHidden(kCheckColumn, !withChecks);
    // Columns stand apart where there is room. The last one takes what is left.
    const QList<int> columns = shownColumns();
    QList<int> widths;
    // The scroll bar comes and goes with the rows; its room is never given away.
    int spare = width() - 2 * frameWidth() - style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (const int column : columns) {
        widths.append(std::max(sizeHintForColumn(column), header()->sectionSizeHint(column)));
        spare -= widths.last();
    }
    const int more = std::clamp(spare / static_cast<int>(columns.size()), 0, kMostBetween);
    for (qsizetype i = 0; i < columns.size(); ++i)
        setColumnWidth(columns[i], widths[i] + (i + 1 < columns.size() ? more : 0));
}

void HitTable::showOrder(const SearchResults& results) {
    const int column = results.sorted ? columnSortedBy(results.sortColumn) : -1;
    header()->setSortIndicator(column,
                               results.sortDirection == "UP" ? Qt::AscendingOrder : Qt::DescendingOrder);
}

QSize HitTable::sizeHint() const {
    return {kLeastWidth, heightFor(kUsualRows)};
}

}  // namespace norlaplan
