#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <cstdio>
#include <functional>

#include "Demonstration.h"
#include "Sketches.h"

namespace {

/// Pictures are drawn at twice their size, so that they stay sharp on a screen of 200 per cent.
constexpr int kScale = 2;

bool save(const QString& path, QSize size, const QColor& background,
          const std::function<void(QPainter&)>& draw, int scale = kScale) {
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(background);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        draw(painter);
    }
    // Bitmaps hold no transparency.
    const bool bitmap = path.endsWith(".BMP");
    const bool saved = (bitmap ? image.convertToFormat(QImage::Format_RGB32) : image).save(path);
    if (!saved) std::fprintf(stderr, "can't write %s\n", qPrintable(path));
    return saved;
}

bool saveStyle(const QDir& folder, const Style& style) {
    const QString stem = QString::fromLatin1(style.stem);
    const auto drawing = [&style](void (*draw)(QPainter&, const Style&)) {
        return [&style, draw](QPainter& painter) { draw(painter, style); };
    };
    return save(folder.filePath("T-" + stem + ".BMP"), kTypeSize, Qt::white, drawing(drawType)) &&
           save(folder.filePath(stem + "-L.BMP"), kSketchSize, Qt::white, drawing(drawLoads)) &&
           save(folder.filePath(stem + "-S.BMP"), kSketchSize, Qt::white, drawing(drawSizes));
}

bool saveDemonstration(const QDir& folder, int number) {
    return save(folder.filePath(QString("C%1.BMP").arg(number)), kDemonstrationSize, Qt::white,
                [number](QPainter& painter) { drawDemonstration(painter, number); });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: style-pictures FOLDER\n");
        return 2;
    }
    const QGuiApplication application(argc, argv);
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    bool whole = true;
    for (const Style& style : styles())
        whole = saveStyle(folder, style) && whole;
    for (int number = 1; number <= kDemonstrationPictures; ++number)
        whole = saveDemonstration(folder, number) && whole;
    whole = save(folder.filePath("start.png"), kStartSize, Qt::white, drawStart, 1) && whole;
    return whole ? 0 : 1;
}
