#pragma once

#include "search/SearchEngine.h"

namespace norlaplan {

/// Remembers that the watch has stopped the search, wherever in it that was, and how far the search is.
class StopLatch {
  public:
    explicit StopLatch(SearchWatch& watch) : watch_(watch) {}

    void setDone(double done) { done_ = done; }
    bool stopped() const { return stopped_; }

    /// Asks the watch, unless it has stopped the search already.
    bool goOn() {
        stopped_ = stopped_ || !watch_.goOn(done_);
        return !stopped_;
    }

  private:
    SearchWatch& watch_;
    double done_ = 0.0;
    bool stopped_ = false;
};

}  // namespace norlaplan
