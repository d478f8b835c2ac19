#include "screens/SearchProgress.h"

namespace norlaplan {
namespace {

constexpr int kMillisecondsBeforeTheBar = 500;

}  // namespace

SearchProgress::SearchProgress(QWidget& form)
    : dialog_("Searching the catalogue.  Escape stops.", "Stop", 0, kSteps, &form) {
    dialog_.setObjectName("SearchProgress");
    dialog_.setWindowTitle("Norlaplan MM");
    dialog_.setWindowModality(Qt::WindowModal);
    dialog_.setMinimumDuration(kMillisecondsBeforeTheBar);
    dialog_.setValue(0);
    sinceLook_.start();
}

bool SearchProgress::goOn(double done) {
    if (sinceLook_.elapsed() < kMillisecondsBetweenLooks) return true;
    sinceLook_.restart();
    // A modal dialog handles its own events at each new value, so Escape is seen here and the forms stay
    // still.
    dialog_.setValue(static_cast<int>(done * (kSteps - 1)));
    return !dialog_.wasCanceled();
}

}  // namespace norlaplan
