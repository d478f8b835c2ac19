#pragma once

#include <QWidget>

namespace norlaplan {

/// A step of a path: its number in a ring, or a tick once it is done.
class StepMark : public QWidget {
  public:
    StepMark(const QString& name, int number);

    void setDone(bool done);
    bool isDone() const { return done_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int number_;
    bool done_ = true;
};

}  // namespace norlaplan
