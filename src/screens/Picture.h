#pragma once

#include <QPixmap>
#include <QWidget>
#include <string>

#include "state/ProgramFolder.h"

namespace norlaplan {

/// A drawing of the program folder on white, scaled to the room it has and never beyond its own sharpness.
/// A picture that is missing says so in its place.
class Picture : public QWidget {
  public:
    /// `name` is the object name, `spoken` what a screen reader says.
    Picture(const char* name, const QString& spoken, QSize preferred);

    /// Shows "\bkground\X-L.BMP" and the like.
    void showFile(const ProgramFolder& folder, const std::string& file);

    QSize sizeHint() const override { return preferred_; }
    QSize minimumSizeHint() const override { return preferred_ / 2; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QSize preferred_;
    QPixmap picture_;
    std::string file_;
};

}  // namespace norlaplan
