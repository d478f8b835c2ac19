#include "screens/BallGrid.h"

#include <QAction>
#include <QHeaderView>
#include <QStandardItemModel>
#include <array>
#include <limits>

#include "loaddist/ShowAnalysisResults.h"
#include "numbers/Text.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kNumberRole = kPlainTextRole + 1;
constexpr int kFewestRows = 3;
constexpr int kUsualRows = 9;
/// Of the columns, in twentieths of a point; they share the width of the window in this proportion.
constexpr std::array<int, 10> kWidths = {400, 800, 800, 700, 950, 950, 850, 850, 850, 850};
constexpr int kWidthOfAll = 8000;
constexpr double kTwipsToPixels = 96.0 / 1440.0;

Qt::Alignment alignmentOf(int column) {
    return column == 0 ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter;
}

QStandardItem* item(int column, const std::string& shown, const std::string& plain, double number) {
    auto* const made = new QStandardItem(QString::fromStdString(trimmed(shown)));
    made->setData(QString::fromStdString(plain), kPlainTextRole);
    made->setData(number, kNumberRole);
    made->setTextAlignment(alignmentOf(column));
    made->setEditable(false);
    return made;
}

/// A ball without load has no contact angle and comes before every angle.
double angleOf(const std::string& text) {
    return trimmed(text) == "N/A" || text.empty() ? -std::numeric_limits<double>::infinity()
                                                  : leadingNumber(text);
}

QList<QStandardItem*> itemsOf(const SolverState& solver, int row, int ball,
                              const std::array<std::string, 10>& line) {
    QList<QStandardItem*> items;
    const auto add = [&](const auto& number) {
        const int column = static_cast<int>(items.size());
        items.append(item(column, line[static_cast<std::size_t>(column)], plainText(number), number));
    };
    add(ball);
    add(solver.BallDeflection(row, ball));
    add(solver.BallLoad(row, ball));
    const std::string& angle = solver.BallAngleText(row, ball);
    items.append(item(3, angle, trimmed(angle), angleOf(angle)));
    add(solver.InnerStress(row, ball));
    add(solver.OuterStress(row, ball));
    for (const BallTable<Single>* const axis :
         {&solver.InnerSemiMajor, &solver.InnerSemiMinor, &solver.OuterSemiMajor, &solver.OuterSemiMinor})
        add(Single(2.0 * (*axis)(row, ball)));
    return items;
}

}  // namespace

BallGrid::BallGrid(const char* name, const QString& spoken)
    : CopyTable(name, spoken), model_(new QStandardItemModel(this)) {
    model_->setSortRole(kNumberRole);
    setModel(model_);
    setAllColumnsShowFocus(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    header()->setDefaultAlignment(Qt::AlignCenter);
    setMinimumHeight(heightFor(kFewestRows));
    addSortAction();
}

void BallGrid::addSortAction() {
    auto* const sort = new QAction(QStringLiteral("&Sort by this column"), this);
    sort->setObjectName(QStringLiteral("Sort"));
    sort->setToolTip(QStringLiteral("Sort by the column of the chosen cell; again turns the order"));
    sort->setShortcut(Qt::Key_Space);
    sort->setShortcutContext(Qt::WidgetShortcut);
    connect(sort, &QAction::triggered, this, [this] {
        const int column = std::max(0, currentIndex().column());
        const bool again = header()->sortIndicatorSection() == column &&
                           header()->sortIndicatorOrder() == Qt::AscendingOrder;
        sortByColumn(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
        scrollTo(currentIndex());
    });
    addAction(sort);
}

void BallGrid::showBalls(const SolverState& solver, int row) {
    setSortingEnabled(false);
    model_->clear();
    const AnalysisResults results = ShowAnalysisResults(solver);
    const AnalysisGrid& grid = row == 2 ? results.secondRow : results.firstRow;
    for (std::size_t column = 0; column < kWidths.size(); ++column) {
        auto* const head =
            new QStandardItem(QString::fromStdString(grid[0][column] + "\n" + grid[1][column]));
        head->setTextAlignment(alignmentOf(static_cast<int>(column)));
        model_->setHorizontalHeaderItem(static_cast<int>(column), head);
    }
    for (int ball = 1; solver.converged && ball <= solver.solvedBalls; ++ball)
        model_->appendRow(itemsOf(solver, row, ball, grid[static_cast<std::size_t>(ball) + 1]));
    header()->setSortIndicator(0, Qt::AscendingOrder);
    setSortingEnabled(true);
    setCurrentIndex(model_->index(0, 0));
    shareWidth();
}

QSize BallGrid::sizeHint() const {
    const int width = static_cast<int>(kWidthOfAll * kTwipsToPixels);
    return {width, heightFor(kUsualRows)};
}

void BallGrid::resizeEvent(QResizeEvent* event) {
    CopyTable::resizeEvent(event);
    shareWidth();
}

void BallGrid::shareWidth() {
    const int width = viewport()->width();
    for (std::size_t i = 0; i < kWidths.size(); ++i) {
        const int column = static_cast<int>(i);
        const int least = std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
        setColumnWidth(column, std::max(least, width * kWidths[i] / kWidthOfAll));
    }
}

}  // namespace norlaplan
