#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>

#include "CustomPictures.h"
#include "Demonstration.h"
#include "IconFile.h"
#include "MonitorIcon.h"
#include "ProductPictures.h"
#include "Sketches.h"
#include "paint/BearingIcon.h"

namespace {

/// Pictures are drawn at twice their size, so that they stay sharp on a screen of 200 per cent.
constexpr int kScale = 2;
constexpr int kQuality = 92;  // of JPEG

bool told(bool saved, const QString& path) {
    if (!saved) std::fprintf(stderr, "can't write %s\n", qPrintable(path));
    return saved;
}

QImage drawn(const PictureFile& picture) {
    // Bitmaps hold no transparency.
    QImage image(picture.size * kScale, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(kScale, kScale);
        picture.draw(painter);
    }
    return image;
}

bool save(const QDir& folder, const PictureFile& picture) {
    const QString path = folder.filePath(QString::fromLatin1(picture.name));
    const bool lossy = path.endsWith(".jpg", Qt::CaseInsensitive);
    return told(drawn(picture).save(path, nullptr, lossy ? kQuality : -1), path);
}

bool saveStyle(const QDir& folder, const Style& style) {
    const QByteArray stem = style.stem;
    const auto drawing = [&style](void (*draw)(QPainter&, const Style&)) {
        return [&style, draw](QPainter& painter) { draw(painter, style); };
    };
    return save(folder, {"T-" + stem + ".BMP", kTypeSize, drawing(drawType)}) &&
           save(folder, {stem + "-L.BMP", kSketchSize, drawing(drawLoads)}) &&
           save(folder, {stem + "-S.BMP", kSketchSize, drawing(drawSizes)});
}

/// The picture that the program starts with, in a format that is read without unpacking, and in the size in
/// which it is usually shown beside twice that.
bool saveStart(const QDir& folder) {
    const PictureFile twice{"start-2x.ppm", kStartSize, drawStart};
    const QString path = folder.filePath("start.ppm");
    const QImage once = drawn(twice).scaled(kStartSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return save(folder, twice) && told(once.save(path), path);
}

bool saveBackgrounds(const QDir& folder) {
    bool whole = true;
    for (const Style& style : styles())
        whole = saveStyle(folder, style) && whole;
    for (int number = 1; number <= kDemonstrationPictures; ++number)
        whole = save(folder, {"C" + QByteArray::number(number) + ".BMP", kDemonstrationSize,
                              [number](QPainter& painter) { drawDemonstration(painter, number); }}) &&
                whole;
    return saveStart(folder) && whole;
}

bool saveAll(const QDir& folder, const std::vector<PictureFile>& pictures) {
    bool whole = true;
    for (const PictureFile& picture : pictures)
        whole = save(folder, picture) && whole;
    return whole;
}

bool saveMonitors(const QDir& folder) {
    bool whole = true;
    for (const bool lit : {true, false}) {
        std::vector<QImage> sizes;
        for (const int pixels : {16, 24, 32, 48, 64})
            sizes.push_back(monitorIcon(pixels, lit));
        const QString path = folder.filePath(lit ? "onmoniter.ico" : "offmoniter.ico");
        whole = told(saveIconFile(path, sizes), path) && whole;
    }
    return whole;
}

/// The program's icon as desktops look for it: hicolor/SIZE/apps.
bool saveDesktopIcons(const QDir& folder) {
    const QString name = "com.varden.norlaplan";
    bool whole = true;
    for (const int pixels : norlaplan::kIconSizes) {
        const QString place = QString("hicolor/%1x%1/apps").arg(pixels);
        folder.mkpath(place);
        const QString path = folder.filePath(place + "/" + name + ".png");
        whole = told(norlaplan::bearingIconImage(pixels).save(path), path) && whole;
    }
    folder.mkpath("hicolor/scalable/apps");
    QFile scalable(folder.filePath("hicolor/scalable/apps/" + name + ".svg"));
    const QByteArray svg = norlaplan::bearingIconSvg();
    return told(scalable.open(QIODevice::WriteOnly) && scalable.write(svg) == svg.size(),
                scalable.fileName()) &&
           whole;
}

/// A folder of the program folder, made when it isn't there.
QDir made(const QDir& folder, const QString& name) {
    folder.mkpath(name);
    return QDir(folder.filePath(name));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: make-pictures PROGRAM-FOLDER DESKTOP-ICONS\n");
        return 2;
    }
    const QGuiApplication application(argc, argv);
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    bool whole = saveBackgrounds(made(folder, "bkground"));
    whole = saveAll(made(folder, "bearing pictures"), productPictures()) && whole;
    whole = saveAll(made(folder, "neds Pictures"), customPictures()) && whole;
    whole = saveMonitors(made(folder, "icons")) && whole;
    whole = saveDesktopIcons(QDir(QString::fromLocal8Bit(argv[2]))) && whole;
    return whole ? 0 : 1;
}
