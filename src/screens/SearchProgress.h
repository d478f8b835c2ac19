#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include "screens/BusyPointer.h"
#include "search/SearchEngine.h"

namespace norlaplan {

/// Looks on while a search runs: busy pointer, a progress bar after half a second, and Escape to stop.
class SearchProgress : public SearchWatch {
  public:
    explicit SearchProgress(QWidget& form);

    bool goOn(double done) override;

  private:
    static constexpr int kSteps = 1000;
    static constexpr int kMillisecondsBetweenLooks = 40;

    BusyPointer busy_;
    QProgressDialog dialog_;
    QElapsedTimer sinceStart_, sinceLook_;
};

}  // namespace norlaplan
