#include "screens/HitTable.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <algorithm>

#include "screens/HitModel.h"

namespace norlaplan {
namespace {

constexpr int kAboveText = 4;
constexpr int kFewestRows = 5;
constexpr int kUsualRows = 9;
constexpr int kLeastWidth = 300;
constexpr int kMostBetween = 28;

/// Rows of the height that a person reads with ease.
class RoomyRows : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * kAboveText);
    }
};

}  // namespace

HitTable::HitTable(const char* name) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(QStringLiteral("Bearings that fit, in columns"));
    setItemDelegate(new RoomyRows(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setMinimumSize(kLeastWidth, heightFor(kFewestRows));
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setSortIndicatorShown(true);
    header()->setStretchLastSection(true);
    auto* const copyAction = new QAction(QStringLiteral("&Copy"), this);
    copyAction->setObjectName(QStringLiteral("Copy"));
    copyAction->setToolTip(QStringLiteral("Copy the table for a spreadsheet"));
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, [this] { copy(); });
    addAction(copyAction);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void HitTable::layOutColumns(bool withSpeed) {
    setColumnHidden(kLineColumn, true);
    setColumnHidden(kHoursColumn, !withSpeed);
    setColumnHidden(kMarkColumn, !withSpeed);
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

QList<int> HitTable::shownColumns() const {
    QList<int> columns;
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (!isColumnHidden(column)) columns.append(column);
    }
    return columns;
}

QString HitTable::tabSeparated() const {
    const QList<int> columns = shownColumns();
    const auto joined = [&](const auto& cell) {
        QStringList cells;
        for (const int column : columns)
            cells.append(cell(column));
        return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    };
    QString text = joined([&](int column) {
        return model()->headerData(column, Qt::Horizontal).toString().replace(QLatin1Char('\n'), ' ');
    });
    for (int row = 0; row < model()->rowCount(); ++row)
        text +=
            joined([&](int column) { return model()->index(row, column).data(kPlainTextRole).toString(); });
    return text;
}

void HitTable::copy() const {
    QGuiApplication::clipboard()->setText(tabSeparated());
}

QSize HitTable::sizeHint() const {
    return {kLeastWidth, heightFor(kUsualRows)};
}

int HitTable::heightFor(int rows) const {
    const int line = fontMetrics().height();
    // The head has two lines.
    return 2 * line + rows * (line + 2 * kAboveText) + 2 * kAboveText;
}

}  // namespace norlaplan
