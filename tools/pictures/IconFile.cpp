#include "IconFile.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>

namespace {

constexpr quint32 kHeadSize = 6;
constexpr quint32 kEntrySize = 16;

QByteArray png(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

}  // namespace

bool saveIconFile(const QString& path, const std::vector<QImage>& pictures) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return false;
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    const auto count = static_cast<quint16>(pictures.size());
    stream << quint16{0} << quint16{1} << count;
    quint32 place = kHeadSize + kEntrySize * count;
    std::vector<QByteArray> contents;
    for (const QImage& picture : pictures) {
        contents.push_back(png(picture));
        const auto length = static_cast<quint32>(contents.back().size());
        // A size of 256 is written as 0.
        const auto side = static_cast<quint8>(picture.width());
        stream << side << side << quint8{0} << quint8{0} << quint16{1} << quint16{32} << length << place;
        place += length;
    }
    for (const QByteArray& content : contents)
        stream.writeRawData(content.constData(), static_cast<int>(content.size()));
    return stream.status() == QDataStream::Ok && file.flush();
}
