#include "screens/Picture.h"

#include <QPainter>

#include "screens/Theme.h"

namespace norlaplan {

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
