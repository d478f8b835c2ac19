#include "screens/HitModel.h"

#include <QHeaderView>
#include <QTreeView>

#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "search/HitLine.h"

namespace norlaplan {
namespace {

QStandardItem* item(const std::string& text, Qt::Alignment alignment = Qt::AlignLeft) {
    auto* const made = new QStandardItem(QString::fromStdString(text));
    made->setTextAlignment(alignment | Qt::AlignVCenter);
    made->setEditable(false);
    return made;
}

std::string shownLife(const std::string& text) {
    return FormatNumber(Single(leadingNumber(text)), "0.00E+00");
}

}  // namespace

void fillHitModel(QStandardItemModel& model, const ProgramState& state, bool fresh) {
    model.clear();
    model.setHorizontalHeaderLabels({"", "Bearing", "L10 (rev.)", "L10 (hours)", "Stock", "Speed"});
    const bool speed = state.loads.speed != 0.0;
    for (const SearchHit& hit : state.search.rows) {
        const std::string mark = fresh && speed ? overSpeedMark(state, hit) : "";
        model.appendRow({item(FormatHitLine(state, hit, mark)), item(hit.name),
                         item(shownLife(hit.l10Revolutions), Qt::AlignRight),
                         item(speed ? shownLife(hit.l10Hours) : "", Qt::AlignRight), item(trimmed(hit.stock)),
                         item(trimmed(mark))});
    }
}

void layOutHitTable(QTreeView& table, const ProgramState& state) {
    const bool speed = state.loads.speed != 0.0;
    table.setColumnHidden(kLineColumn, true);
    table.setColumnHidden(kHoursColumn, !speed);
    table.setColumnHidden(kMarkColumn, !speed);
    // The last column takes what is left; a width of its own would push it out of view.
    const int last = speed ? kMarkColumn : kStockColumn;
    for (int column = kNameColumn; column < last; ++column) {
        table.resizeColumnToContents(column);
        table.setColumnWidth(column, table.columnWidth(column) + 16);
    }
    table.header()->setStretchLastSection(true);
}

}  // namespace norlaplan
