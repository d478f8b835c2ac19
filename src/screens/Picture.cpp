#include "screens/Picture.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

#include "screens/Theme.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

/// Of what stands there only a plain file is opened: a pipe or a device would be waited for.
bool isFile(const std::filesystem::path& file) {
    std::error_code unreadable;
    return std::filesystem::is_regular_file(file, unreadable);
}

/// "start-2x.ppm" beside "start.ppm".
std::filesystem::path finerOf(const std::filesystem::path& file) {
    return file.parent_path() / (file.stem().string() + "-2x" + file.extension().string());
}

/// What is made from a picture's file, if it can be.
template <typename Made>
Made madeFrom(const std::filesystem::path& file, Made (*read)(const std::filesystem::path&),
              bool (*isThere)(const Made&)) {
    std::error_code unreadable;
    if (!std::filesystem::exists(file, unreadable)) throw fileFault(fault::kFileNotFound, file);
    Made made = read(file);
    if (!isThere(made)) throw fileFault(fault::kInvalidPicture, file);
    return made;
}

}  // namespace

QPixmap pictureOrNone(const std::filesystem::path& file) {
    if (!isFile(file)) return {};
    const QString name = QString::fromStdString(file.string());
    // The ending tells the format, so that not every module for pictures has to be loaded; what a file with
    // another one's ending holds they find out together.
    QImageReader reader(name, QFileInfo(name).suffix().toLatin1());
    reader.setAutoDetectImageFormat(false);
    const QPixmap picture = QPixmap::fromImage(reader.read());
    return picture.isNull() ? QPixmap(name) : picture;
}

QIcon iconOrNone(const std::filesystem::path& file) {
    return isFile(file) ? QIcon(QString::fromStdString(file.string())) : QIcon();
}

QPixmap readPicture(const std::filesystem::path& file) {
    return madeFrom<QPixmap>(file, pictureOrNone, [](const QPixmap& picture) { return !picture.isNull(); });
}

QIcon readIcon(const std::filesystem::path& file) {
    return madeFrom<QIcon>(file, iconOrNone,
                           [](const QIcon& icon) { return !icon.availableSizes().isEmpty(); });
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
    const std::filesystem::path found = folder.find(file);
    picture_ = pictureOrNone(found);
    finer_ = finerOf(found);
    update();
}

void Picture::showStated(const std::filesystem::path& file) {
    showNothing();
    picture_ = readPicture(file);
    file_ = file.string();
}

void Picture::showNothing() {
    picture_ = {};
    finer_.clear();
    file_.clear();
    update();
}

void Picture::takeFiner(const QSize& wanted) {
    if (finer_.empty() || wanted == picture_.size()) return;
    const QPixmap finer = pictureOrNone(finer_);
    if (!finer.isNull()) picture_ = finer;
    finer_.clear();
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
    const QSize wanted = size * devicePixelRatioF();
    takeFiner(wanted);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, picture_.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

}  // namespace norlaplan
