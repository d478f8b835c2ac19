#include "screens/SearchProgress.h"

#include <QCoreApplication>
#include <limits>

namespace norlaplan {
namespace {

constexpr int kMillisecondsBeforeTheBar = 500;

}  // namespace

SearchProgress::SearchProgress(QWidget& form)
    : dialog_("Searching the catalog.  Escape stops.", "Stop", 0, kSteps, &form) {
    dialog_.setObjectName("SearchProgress");
    dialog_.setWindowTitle("Norlaplan MM");
    dialog_.setWindowModality(Qt::WindowModal);
    dialog_.setAutoClose(false);
    // Left to its own timer the bar would also come up over a question that the search asks.
    dialog_.setMinimumDuration(std::numeric_limits<int>::max());
    dialog_.reset();
    sinceStart_.start();
    sinceLook_.start();
}

bool SearchProgress::goOn(double done) {
    if (dialog_.wasCanceled()) return false;
    if (sinceLook_.elapsed() < kMillisecondsBetweenLooks) return true;
    sinceLook_.restart();
    if (!dialog_.isVisible()) {
        if (sinceStart_.elapsed() < kMillisecondsBeforeTheBar) return true;
        dialog_.show();
    }
    dialog_.setValue(static_cast<int>(done * (kSteps - 1)));
    // The dialog is modal: Escape is seen here and the forms stay still.
    QCoreApplication::processEvents();
    return !dialog_.wasCanceled();
}

}  // namespace norlaplan
