#include "paint/PainterCanvas.h"

#include <QFontMetricsF>
#include <QPageSize>
#include <QPainter>
#include <QPen>
#include <QStringList>
#include <algorithm>

namespace norlaplan {
namespace {

constexpr double kTwips = 1440.0;  // to the inch
constexpr double kEmuPerTwip = 635.0;
constexpr int kTwipsPerPoint = 20;

constexpr int kDashed = 6;
constexpr int kDashDotted = 8;

QString familyOf(Typeface typeface) {
    switch (typeface) {
        case Typeface::Arial:
            return QStringLiteral("Liberation Sans");
        case Typeface::Courier:
            return QStringLiteral("Liberation Mono");
        case Typeface::Times:
        case Typeface::Antiqua:
            break;
    }
    return QStringLiteral("Liberation Serif");
}

QFont fontOf(const TextLook& look) {
    QFont font(familyOf(look.typeface));
    font.setPixelSize(std::max(1, qRound(look.points * kTwipsPerPoint)));
    font.setBold(look.bold);
    font.setItalic(look.italic);
    font.setUnderline(look.underline);
    // Hinting would make the widths depend on the zoom.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

double startOf(double room, double width, Alignment alignment) {
    switch (alignment) {
        case Alignment::Centre:
            return (room - width) / 2.0;
        case Alignment::Right:
            return room - width;
        case Alignment::Left:
            break;
    }
    return 0.0;
}

}  // namespace

QColor colourOf(Colour colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU),
            static_cast<int>(colour >> 16U & 0xFFU)};
}

QPageLayout pageLayoutOf(const Paper& paper) {
    // A page size is told upright; the orientation turns it.
    const QSizeF upright(std::min(paper.width, paper.height), std::max(paper.width, paper.height));
    return {QPageSize(upright, QPageSize::Inch),
            paper.isLandscape() ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

PainterCanvas::PainterCanvas(QPainter& painter, const Paper& paper, double pixelsPerInch,
                             std::function<void()> turnPage)
    : painter_(painter),
      pageHeight_(paper.height),
      pixelsPerInch_(pixelsPerInch),
      turnPage_(std::move(turnPage)),
      device_(painter.transform()) {
    usePageScale();
}

QPointF PainterCanvas::place(PagePoint point) const {
    return {point.x * kTwips, (pageHeight_ - point.y) * kTwips};
}

QRectF PainterCanvas::place(const PageBox& box) const {
    return QRectF(place(PagePoint{box.left, box.top}), place(PagePoint{box.right, box.bottom})).normalized();
}

void PainterCanvas::usePageScale() {
    const double scale = pixelsPerInch_ / kTwips;
    painter_.setTransform(QTransform::fromScale(scale, scale) * device_);
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void PainterCanvas::usePen(const PagePen& pen) {
    // A line as wide as a figure is a patch behind one: it ends at its points.
    constexpr double kPatch = 38100.0;
    // Never thinner than a dot of the device: at small zooms hair lines would fade away. Nor just a dot: that
    // is drawn in a quick way which leaves the chords of an arc crooked.
    constexpr double kDots = 1.02;
    const double width = std::max(pen.width / kEmuPerTwip, kDots * kTwips / pixelsPerInch_);
    QPen line(colourOf(pen.colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (pen.dash == kDashed) line.setDashPattern({6.0, 4.0});
    if (pen.dash == kDashDotted) line.setDashPattern({12.0, 4.0, 1.0, 4.0});
    if (pen.dash != 0 || pen.width >= kPatch) line.setCapStyle(Qt::FlatCap);
    painter_.setPen(line);
}

void PainterCanvas::line(PagePoint from, PagePoint to, const PagePen& pen) {
    usePen(pen);
    painter_.drawLine(place(from), place(to));
}

void PainterCanvas::rectangle(const PageBox& box, std::optional<Colour> fill,
                              const std::optional<PagePen>& frame) {
    if (fill) painter_.fillRect(place(box), colourOf(*fill));
    if (!frame) return;
    usePen(*frame);
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(place(box));
}

void PainterCanvas::circle(PagePoint centre, double radius, const PagePen& pen) {
    usePen(pen);
    painter_.setBrush(Qt::NoBrush);
    painter_.drawEllipse(place(centre), radius * kTwips, radius * kTwips);
}

void PainterCanvas::text(const PageBox& box, std::string_view text, const TextLook& look) {
    const QFont font = fontOf(look);
    const QFontMetricsF metrics(font);
    const QRectF area = place(box);
    painter_.save();
    painter_.setFont(font);
    painter_.setPen(colourOf(look.colour));
    painter_.translate(look.vertical ? area.bottomLeft() : area.topLeft());
    if (look.vertical) painter_.rotate(-90.0);
    const double room = look.vertical ? area.height() : area.width();
    const QStringList lines = textOf(text).split(QLatin1Char('\n'));
    double baseline = metrics.ascent();
    if (look.middle) {
        const double height =
            metrics.height() + static_cast<double>(lines.size() - 1) * metrics.lineSpacing();
        baseline += ((look.vertical ? area.width() : area.height()) - height) / 2.0;
    }
    for (const QString& line : lines) {
        const double start = startOf(room, metrics.horizontalAdvance(line), look.alignment);
        painter_.drawText(QPointF(start, baseline), line);
        baseline += metrics.lineSpacing();
    }
    painter_.restore();
}

double PainterCanvas::textWidth(std::string_view text, const TextLook& look) {
    return QFontMetricsF(fontOf(look)).horizontalAdvance(textOf(text)) / kTwips;
}

void PainterCanvas::newPage() {
    if (!turnPage_) return;
    painter_.setTransform(device_);
    turnPage_();
    // The new page may lie elsewhere under the same painter.
    device_ = painter_.transform();
    usePageScale();
}

}  // namespace norlaplan
