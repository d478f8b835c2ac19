#include "paint/PictureFile.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <string>

#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "paint/PageImage.h"
#include "paint/PainterCanvas.h"
#include "state/FileFault.h"
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

/// The bytes of a picture that is to become this file.
QByteArray encoded(const QImage& image, const char* format, const std::filesystem::path& file) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format)) raiseFile(fault::kDeviceIo, file);
    return bytes;
}

void writeBytes(const std::filesystem::path& path, const QByteArray& bytes) {
    writeWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// "PDF", "PNG" or "BMP"; empty for an extension that is none of them.
std::string formatOf(const std::string& extension) {
    const std::string format = upperCase(extension);
    for (const char* const known : {"PDF", "PNG", "BMP"}) {
        if (format == std::string(".") + known) return known;
    }
    return {};
}

}  // namespace

void savePicture(const std::filesystem::path& path, const Drawing& drawing) {
    savePictureAs(path, drawing, path.extension().string());
}

void savePictureAs(const std::filesystem::path& path, const Drawing& drawing, const std::string& extension) {
    const std::string format = formatOf(extension);
    if (format.empty()) raise(fault::kInvalidCall);
    writeBytes(path, format == "PDF" ? pdfOf(drawing) : encoded(pageImage(drawing), format.c_str(), path));
}

void savePictureAs(const std::filesystem::path& path, const Drawing& drawing, const std::string& extension,
                   const PageBox& area) {
    writeBytes(path, encoded(pageImage(drawing, area), formatOf(extension).c_str(), path));
}

bool isPictureFile(const std::filesystem::path& path) {
    return !formatOf(path.extension().string()).empty();
}

}  // namespace norlaplan
