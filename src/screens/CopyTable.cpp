#include "screens/CopyTable.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QStyledItemDelegate>

namespace norlaplan {
namespace {

constexpr int kAboveText = 4;

/// Rows of the height that a person reads with ease.
class RoomyRows : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * kAboveText);
    }
};

}  // namespace

CopyTable::CopyTable(const char* name, const QString& spoken) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(spoken);
    setItemDelegate(new RoomyRows(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
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

QList<int> CopyTable::shownColumns() const {
    QList<int> columns;
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (!isColumnHidden(column)) columns.append(column);
    }
    return columns;
}

QString CopyTable::tabSeparated() const {
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

void CopyTable::copy() const {
    QGuiApplication::clipboard()->setText(tabSeparated());
}

int CopyTable::heightFor(int rows) const {
    const int line = fontMetrics().height();
    // The head has two lines.
    return 2 * line + rows * (line + 2 * kAboveText) + 2 * kAboveText;
}

}  // namespace norlaplan
