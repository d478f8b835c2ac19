#include "screens/Picture.h"

#include <QPainter>

#include "screens/Theme.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

/// What is made from a picture's file, if it can be.
template <typename Made>
Made madeFrom(const std::filesystem::path& file, bool (*isThere)(const Made&)) {
    std::error_code unreadable;
    if (!std::filesystem::exists(file, unreadable)) throw fileFault(fault::kFileNotFound, file);
    Made made(QString::fromStdString(file.string()));
    if (!isThere(made)) throw fileFault(fault::kInvalidPicture, file);
    return made;
}

}  // namespace

QPixmap readPicture(const std::filesystem::path& file) {
    return madeFrom<QPixmap>(file, [](const QPixmap& picture) { return !picture.isNull(); });
}

QIcon readIcon(const std::filesystem::path& file) {
    return madeFrom<QIcon>(file, [](const QIcon& icon) { return !icon.availableSizes().isEmpty(); });
}

Picture::Picture(const char* name, const QString& spoken, QSize preferred) : preferred_(preferred) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(spoken);
    setPalette(theme::paper());
    setAutoFillBackground(true);
}

void Picture::showFile(const ProgramFolder& folder, const std::string& file) {
    if (file == file_) return;
    file_ = file;
    picture_ = QPixmap(QString::fromStdString(folder.find(file).string()));
    update();
}

void Picture::showStated(const std::filesystem::path& file) {
    showNothing();
    picture_ = readPicture(file);
    file_ = file.string();
}

void Picture::showNothing() {
    picture_ = {};
    file_.clear();
    update();
}

void Picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (picture_.isNull()) {
        if (!file_.empty()) painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("(no picture)"));
        return;
    }
    const QSize size = picture_.size().scaled(rect().size(), Qt::KeepAspectRatio);
    QRect place(QPoint(0, 0), size);
    place.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(
        place, picture_.scaled(size * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

}  // namespace norlaplan
