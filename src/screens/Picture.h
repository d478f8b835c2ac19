#pragma once

#include <QIcon>
#include <QPixmap>
#include <QWidget>
#include <filesystem>
#include <string>

#include "state/ProgramFolder.h"

namespace norlaplan {

/// The picture of a file, and an icon in all the sizes that the file has; nothing where there is none. What
/// stands in the file's place is never waited for.
QPixmap pictureOrNone(const std::filesystem::path& file);
QIcon iconOrNone(const std::filesystem::path& file);

/// The picture of a file. Errors: 53 when it is missing, 481 when it is no picture; they name the file.
QPixmap readPicture(const std::filesystem::path& file);
/// The same in all the sizes that the file has.
QIcon readIcon(const std::filesystem::path& file);

/// A drawing of the program folder on white, scaled to the room it has: from "start-2x.ppm" with more pixels,
/// where that lies beside "start.ppm" and the room isn't just that one's size. A picture that is missing says
/// so in its place.
class Picture : public QWidget {
  public:
    /// `name` is the object name, `spoken` what a screen reader says.
    Picture(const char* name, const QString& spoken, QSize preferred);

    /// Shows "\bkground\X-L.BMP" and the like.
    void showFile(const ProgramFolder& folder, const std::string& file);
    /// Shows a picture that must be there, or none. Errors as `readPicture`, which leave none.
    void showStated(const std::filesystem::path& file);
    void showNothing();

    QSize sizeHint() const override { return preferred_; }
    QSize minimumSizeHint() const override { return preferred_ / 2; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void takeFiner(const QSize& wanted);

    QSize preferred_;
    QPixmap picture_;
    std::string file_;
    std::filesystem::path finer_;  ///< the same picture with more pixels, as long as it isn't needed
};

}  // namespace norlaplan
