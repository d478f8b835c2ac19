#include "paint/PictureFile.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <string>

#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "paint/PainterCanvas.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

constexpr int kPdfDotsPerInch = 1200;
constexpr int kImageDotsPerInch = 150;

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

/// An image that grows by a page at a time.
class ImagePages {
  public:
    /// Pages of this size in inches.
    ImagePages(double width, double height)
        : pageWidth_(qRound(width * kImageDotsPerInch)), pageHeight_(qRound(height * kImageDotsPerInch)) {
        addPage();
    }
    ~ImagePages() {
        if (painter.isActive()) painter.end();
    }
    ImagePages(const ImagePages&) = delete;
    ImagePages& operator=(const ImagePages&) = delete;

    void addPage() {
        if (painter.isActive()) painter.end();
        const QImage before = image;
        image = QImage(pageWidth_, before.height() + pageHeight_, QImage::Format_RGB32);
        image.fill(Qt::white);
        painter.begin(&image);
        if (!before.isNull()) painter.drawImage(0, 0, before);
        painter.translate(0, before.height());
    }

    QImage image;
    QPainter painter;

  private:
    int pageWidth_, pageHeight_;
};

QByteArray encoded(QImage image, const char* format) {
    const int dotsPerMetre = qRound(kImageDotsPerInch / 0.0254);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format)) raise(fault::kDeviceIo);
    return bytes;
}

QByteArray imageOf(const Drawing& drawing, const char* format) {
    ImagePages pages(drawing.paper.width, drawing.paper.height);
    PainterCanvas canvas(pages.painter, drawing.paper, kImageDotsPerInch, [&pages] { pages.addPage(); });
    drawing.draw(canvas);
    pages.painter.end();
    return encoded(std::move(pages.image), format);
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
    const QByteArray bytes = extension == ".PDF" ? pdfOf(drawing) : imageOf(drawing, extension.c_str() + 1);
    writeBytes(path, bytes);
}

void saveBitmap(const std::filesystem::path& path, const Drawing& drawing) {
    writeBytes(path, imageOf(drawing, "BMP"));
}

void saveBitmap(const std::filesystem::path& path, const Drawing& drawing, const PageBox& area) {
    const double across = area.right - area.left;
    ImagePages page(drawing.paper.width, drawing.paper.width * (area.top - area.bottom) / across);
    const double dotsPerInch = page.image.width() / across;
    page.painter.translate(-area.left * dotsPerInch, -(drawing.paper.height - area.top) * dotsPerInch);
    PainterCanvas canvas(page.painter, drawing.paper, dotsPerInch);
    drawing.draw(canvas);
    page.painter.end();
    writeBytes(path, encoded(std::move(page.image), "BMP"));
}

bool isPictureFile(const std::filesystem::path& path) {
    const std::string extension = extensionOf(path);
    return extension == ".PDF" || extension == ".PNG" || extension == ".BMP";
}

}  // namespace norlaplan
