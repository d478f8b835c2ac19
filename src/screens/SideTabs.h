#pragma once

#include <QTabWidget>

namespace norlaplan {

/// Pages with their tabs one below the other at the left, each with its icon and its name beside it.
class SideTabs : public QTabWidget {
  public:
    explicit SideTabs(const char* name);
};

}  // namespace norlaplan
