#include "paint/PictureFile.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <string>

#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "paint/PageImage.h"
#include "paint/PainterCanvas.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

constexpr int kPdfDotsPerInch = 1200;

QByteArray pdfOf(const Drawing& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kPdfDotsPerInch);
        writer.setPageLayout(pageLayoutOf(drawing.paper));
        writer.setCreator(QStringLiteral("NORLAPLAN-MM version 1.00"));
        QPainter painter(&writer);
        PainterCanvas canvas(painter, drawing.paper, kPdfDotsPerInch, [&writer] { writer.newPage(); });
        drawing.draw(canvas);
    }
    return bytes;
}

QByteArray encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format)) raise(fault::kDeviceIo);
    return bytes;
}

void writeBytes(const std::filesystem::path& path, const QByteArray& bytes) {
    writeWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

std::string extensionOf(const std::filesystem::path& path) {
    return upperCase(path.extension().string());
}

}  // namespace

void savePicture(const std::filesystem::path& path, const Drawing& drawing) {
    const std::string extension = extensionOf(path);
    if (!isPictureFile(path)) raise(fault::kInvalidCall);
    const QByteArray bytes =
        extension == ".PDF" ? pdfOf(drawing) : encoded(pageImage(drawing), extension.c_str() + 1);
    writeBytes(path, bytes);
}

void saveBitmap(const std::filesystem::path& path, const Drawing& drawing) {
    writeBytes(path, encoded(pageImage(drawing), "BMP"));
}

void saveBitmap(const std::filesystem::path& path, const Drawing& drawing, const PageBox& area) {
    writeBytes(path, encoded(pageImage(drawing, area), "BMP"));
}

bool isPictureFile(const std::filesystem::path& path) {
    const std::string extension = extensionOf(path);
    return extension == ".PDF" || extension == ".PNG" || extension == ".BMP";
}

}  // namespace norlaplan
