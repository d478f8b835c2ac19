#include "screens/HitModel.h"

#include <QGuiApplication>
#include <algorithm>

#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "screens/Theme.h"
#include "search/HitLine.h"

namespace norlaplan {
namespace {

std::string asItIs(const std::string& text) {
    return trimmed(text);
}
std::string grouped(const std::string& text) {
    return FormatNumber(leadingNumber(text), "#,##0");
}
/// With the digits that a life is worth, as the line has it.
std::string inPowersOfTen(const std::string& text) {
    return FormatNumber(Single(leadingNumber(text)), "0.00E+00");
}

struct Column {
    HitColumn column;
    SortColumn sort;
    const char* head;  ///< in two lines, for the figures are narrow; %1 is the unit of length
    std::string SearchHit::*text;
    std::string (*shown)(const std::string& text);
    Qt::Alignment alignment;
};

const Column kColumns[] = {
    {kNameColumn, kSortByName, "Bearing", &SearchHit::name, asItIs, Qt::AlignLeft},
    {kBoreColumn, kSortByBore, "Bore\n(%1)", &SearchHit::boreText, asItIs, Qt::AlignRight},
    {kOdColumn, kSortByOd, "O.D.\n(%1)", &SearchHit::odText, asItIs, Qt::AlignRight},
    {kHeightColumn, kSortByHeight, "Height\n(%1)", &SearchHit::heightText, asItIs, Qt::AlignRight},
    {kLifeColumn, kSortByLife, "L10 life\n(rev.)", &SearchHit::l10Revolutions, inPowersOfTen, Qt::AlignRight},
    {kHoursColumn, kSortByHours, "L10 life\n(hours)", &SearchHit::l10Hours, grouped, Qt::AlignRight},
    {kLimitSpeedColumn, kSortByLimitSpeed, "Limit speed\n(rpm)", &SearchHit::speedLimit, grouped,
     Qt::AlignRight},
    {kStockColumn, kSortByAvailability, "Stock", &SearchHit::stock, asItIs, Qt::AlignLeft},
};
constexpr const char* kMarkHead = "Speed\ncheck";
constexpr const char* kCheckHead = "Life\ncheck";

/// As short as a column of the table can be: the sentence is in the tip and under the table.
QString checkMark(const LifeChecks& checks) {
    if (!checks.unbalanced) return checks.shorterRowLife ? QStringLiteral("Row 2") : QString();
    return checks.shorterRowLife ? QStringLiteral("Unbalanced, row 2") : QStringLiteral("Unbalanced");
}

void setHead(QStandardItemModel& model, int column, const QString& text, Qt::Alignment alignment) {
    auto* const head = new QStandardItem(text);
    head->setTextAlignment(alignment | Qt::AlignVCenter);
    model.setHorizontalHeaderItem(column, head);
}

QStandardItem* item(const std::string& shown, const std::string& plain, Qt::Alignment alignment) {
    auto* const made = new QStandardItem(QString::fromStdString(shown));
    made->setData(QString::fromStdString(plain), kPlainTextRole);
    made->setTextAlignment(alignment | Qt::AlignVCenter);
    made->setEditable(false);
    return made;
}

QStandardItem* checkItem(const SearchHit& hit) {
    const QString sentences = checkSentencesOf(hit);
    std::string names;
    for (const std::string& name : checkNames(hit.checks))
        names += (names.empty() ? "" : "; ") + name;
    QStandardItem* const made = item(checkMark(hit.checks).toStdString(), names, Qt::AlignLeft);
    made->setToolTip(sentences);
    made->setAccessibleText(sentences);
    return made;
}

/// The column of the checks is the last one and often out of sight: the life itself is marked too.
void markLife(QStandardItem& life, const SearchHit& hit) {
    if (!hit.checks.any()) return;
    life.setText("! " + life.text());
    life.setForeground(theme::badColour(QGuiApplication::palette()));
    life.setToolTip(checkSentencesOf(hit));
    life.setAccessibleText(life.text() + ". " + checkSentencesOf(hit));
}

QList<QStandardItem*> rowOf(const ProgramState& state, const SearchHit& hit, bool fresh) {
    const bool speed = state.loads.speed != 0.0;
    const std::string mark = speed ? overSpeedMark(state, hit) : "";
    const std::string line = FormatHitLine(state, hit, fresh ? mark : "");
    QList<QStandardItem*> row = {item(line, line, Qt::AlignLeft)};
    for (const Column& column : kColumns) {
        const std::string& text = hit.*column.text;
        const bool empty = column.column == kHoursColumn && !speed;
        row.append(empty ? item("", "", column.alignment)
                         : item(column.shown(text), trimmed(text), column.alignment));
    }
    markLife(*row[kLifeColumn], hit);
    row.append(item(trimmed(mark), trimmed(mark), Qt::AlignLeft));
    row.append(checkItem(hit));
    for (QStandardItem* const words : row.mid(row.size() - 2))
        words->setForeground(theme::badColour(QGuiApplication::palette()));
    return row;
}

}  // namespace

void fillHitModel(QStandardItemModel& model, const ProgramState& state, bool fresh) {
    model.setRowCount(0);
    model.setColumnCount(kHitColumns);
    const QString unit = QString::fromStdString(state.units.lengthUnit);
    for (const Column& column : kColumns) {
        const QString head = QString::fromUtf8(column.head);
        setHead(model, column.column, head.contains(QLatin1String("%1")) ? head.arg(unit) : head,
                column.alignment);
    }
    setHead(model, kMarkColumn, QString::fromUtf8(kMarkHead), Qt::AlignLeft);
    setHead(model, kCheckColumn, QString::fromUtf8(kCheckHead), Qt::AlignLeft);
    for (const SearchHit& hit : state.search.rows)
        model.appendRow(rowOf(state, hit, fresh));
}

QString checkSentencesOf(const SearchHit& hit) {
    QStringList sentences;
    for (const std::string& sentence : checkSentences(hit.checks))
        sentences.append(QString::fromStdString(sentence));
    return sentences.join(QLatin1Char('\n'));
}

bool hasChecks(const ProgramState& state) {
    const std::vector<SearchHit>& rows = state.search.rows;
    return std::any_of(rows.begin(), rows.end(), [](const SearchHit& hit) { return hit.checks.any(); });
}

int sortColumnOf(int column) {
    for (const Column& known : kColumns) {
        if (known.column == column) return known.sort;
    }
    return 0;
}

int columnSortedBy(int sortColumn) {
    for (const Column& known : kColumns) {
        if (known.sort == sortColumn) return known.column;
    }
    return -1;
}

}  // namespace norlaplan
