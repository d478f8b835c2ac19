#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>
#include <variant>
#include <vector>

#include "documents/SheetRecords.h"
#include "paint/PainterCanvas.h"
#include "screens/Program.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

constexpr double kDotsPerInch = 400.0;

/// Everything that is drawn, in its order.
class OrderedCanvas : public RecordingCanvas {
  public:
    using Piece = std::variant<Line, Rectangle, Circle, Text>;
    std::vector<Piece> pieces;

    void line(PagePoint from, PagePoint to, const PagePen& pen) override {
        pieces.push_back(Line{from, to, pen});
    }
    void rectangle(const PageBox& box, std::optional<Colour> fill,
                   const std::optional<PagePen>& frame) override {
        pieces.push_back(Rectangle{box, fill, frame});
    }
    void circle(PagePoint centre, double radius, const PagePen& pen) override {
        pieces.push_back(Circle{centre, radius, pen});
    }
    void text(const PageBox& box, std::string_view text, const TextLook& look) override {
        pieces.push_back(Text{box, std::string(text), look});
    }
};

/// Where a text's ink is on the page: the text is drawn alone, and its dark dots are looked for.
PageBox inkOf(const RecordingCanvas::Text& text) {
    constexpr double kAround = 0.1;
    constexpr double kRoom = 3.2;
    const double height = std::max(0.5, text.box.top - text.box.bottom) + 2.0 * kAround;
    const double left = text.box.left - kAround;
    const double top = text.box.top + kAround;
    QImage picture(static_cast<int>(kRoom * kDotsPerInch), static_cast<int>(height * kDotsPerInch),
                   QImage::Format_Grayscale8);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(-left * kDotsPerInch, -(papers::kLetter.height - top) * kDotsPerInch);
    TextLook look = text.look;
    look.colour = colours::kBlack;
    PainterCanvas(painter, papers::kLetter, kDotsPerInch).text(text.box, text.text, look);
    painter.end();
    int west = picture.width(), east = -1, north = picture.height(), south = -1;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* const row = picture.constScanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            if (row[x] > 128) continue;
            west = std::min(west, x);
            east = std::max(east, x);
            north = std::min(north, y);
            south = std::max(south, y);
        }
    }
    return {left + west / kDotsPerInch, top - north / kDotsPerInch, left + (east + 1) / kDotsPerInch,
            top - (south + 1) / kDotsPerInch};
}

PageBox grown(const PageBox& box, double by) {
    return {box.left - by, box.top + by, box.right + by, box.bottom - by};
}

bool holds(const PageBox& outer, const PageBox& inner) {
    return outer.left <= inner.left && outer.right >= inner.right && outer.top >= inner.top &&
           outer.bottom <= inner.bottom;
}

/// Whether the line runs through the box: what is left of it, cut at each side in turn.
bool crosses(PagePoint from, PagePoint to, const PageBox& box) {
    double first = 0.0, last = 1.0;
    const auto cut = [&](double start, double way, double low, double high) {
        if (way == 0.0) return start > low && start < high;
        const double one = (low - start) / way, other = (high - start) / way;
        first = std::max(first, std::min(one, other));
        last = std::min(last, std::max(one, other));
        return first < last;
    };
    return cut(from.x, to.x - from.x, box.left, box.right) && cut(from.y, to.y - from.y, box.bottom, box.top);
}

bool crosses(const RecordingCanvas::Circle& circle, const PageBox& box) {
    constexpr int kChords = 90;
    const auto at = [&](int i) {
        const double angle = i * 2.0 * std::acos(-1.0) / kChords;
        return PagePoint{circle.centre.x + circle.radius * std::cos(angle),
                         circle.centre.y + circle.radius * std::sin(angle)};
    };
    for (int i = 0; i < kChords; ++i) {
        if (crosses(at(i), at(i + 1), box)) return true;
    }
    return false;
}

/// The area that a piece paints over, when it does.
std::optional<PageBox> coverOf(const OrderedCanvas::Piece& piece) {
    constexpr double kEmuPerInch = 914400.0;
    if (const auto* rectangle = std::get_if<RecordingCanvas::Rectangle>(&piece)) {
        if (rectangle->fill) return rectangle->box;
    }
    const auto* line = std::get_if<RecordingCanvas::Line>(&piece);
    if (line == nullptr || line->pen.colour != colours::kWhite) return std::nullopt;
    const double half = line->pen.width / kEmuPerInch / 2.0;
    return PageBox{line->from.x, line->from.y + half, line->to.x, line->from.y - half};
}

bool strikes(const OrderedCanvas::Piece& piece, const PageBox& ink) {
    if (const auto* line = std::get_if<RecordingCanvas::Line>(&piece)) {
        return line->pen.colour != colours::kWhite && crosses(line->from, line->to, ink);
    }
    if (const auto* circle = std::get_if<RecordingCanvas::Circle>(&piece)) return crosses(*circle, ink);
    const auto* rectangle = std::get_if<RecordingCanvas::Rectangle>(&piece);
    if (rectangle == nullptr || !rectangle->frame) return false;
    const PageBox& box = rectangle->box;
    const PagePoint corners[] = {{box.left, box.top},
                                 {box.right, box.top},
                                 {box.right, box.bottom},
                                 {box.left, box.bottom},
                                 {box.left, box.top}};
    for (int i = 0; i < 4; ++i) {
        if (crosses(corners[i], corners[i + 1], ink)) return true;
    }
    return false;
}

/// Whether a line stands in the text's ink, or nearer to it than half a point: one that nothing covers.
bool isStruck(const OrderedCanvas& sheet, const RecordingCanvas::Text& text) {
    constexpr double kHalfPoint = 0.5 / 72.0;
    const PageBox ink = inkOf(text);
    bool struck = false;
    for (const auto& piece : sheet.pieces) {
        const std::optional<PageBox> cover = coverOf(piece);
        if (cover && holds(*cover, ink)) struck = false;
        struck = struck || strikes(piece, grown(ink, kHalfPoint));
    }
    return struck;
}

OrderedCanvas sheetOf(const char* number, const char* units, const char* second = "") {
    Program program;
    program.useUnits(units);
    program.state.bearing.zSeparatorChoice = second;
    program.enterNumber(number);
    OrderedCanvas canvas;
    paintSheet(program.files.read("CONDENSED.DAT"), canvas);
    return canvas;
}

void compareUnstruck(const char* number, const char* units) {
    const OrderedCanvas sheet = sheetOf(number, units);
    int texts = 0;
    for (const auto& piece : sheet.pieces) {
        const auto* text = std::get_if<RecordingCanvas::Text>(&piece);
        if (text == nullptr || text->text.find_first_not_of(' ') == std::string::npos) continue;
        ++texts;
        QVERIFY2(!isStruck(sheet, *text), (std::string(number) + " " + units + ": " + text->text).c_str());
    }
    QVERIFY(texts > 50);
}

/// Height of the middle of a capital or a figure that stands in the place of the text.
double middleOf(const RecordingCanvas::Text& text, const char* sign) {
    RecordingCanvas::Text lone = text;
    lone.text = sign;
    const PageBox ink = inkOf(lone);
    return (ink.top + ink.bottom) / 2.0;
}

/// The level lines next to a text below and above it, of those that run along all of it.
std::pair<double, double> levelsAround(const OrderedCanvas& sheet, const PageBox& ink) {
    double below = 0.0, above = 11.0;
    for (const auto& piece : sheet.pieces) {
        const auto* line = std::get_if<RecordingCanvas::Line>(&piece);
        if (line == nullptr || std::abs(line->from.y - line->to.y) > 1e-9) continue;
        if (std::min(line->from.x, line->to.x) > ink.left || std::max(line->from.x, line->to.x) < ink.right)
            continue;
        if (line->from.y <= ink.bottom) below = std::max(below, line->from.y);
        if (line->from.y >= ink.top) above = std::min(above, line->from.y);
    }
    return {below, above};
}

}  // namespace

class SheetLooksTest : public QObject {
    Q_OBJECT

  private slots:
    void no_line_runs_through_a_text_or_touches_it_data() {
        QTest::addColumn<QByteArray>("number");
        for (const char* const number :
             {"K19013AR0", "K19013BR0N", "K19013CP0", "K19013FR0N", "K19013TR0", "K19013UR0", "K19013XP0",
              "K19013AF0", "S02008XJ6", "K19013BR0Z", "S30020CN6", "K02008XP0"})
            QTest::newRow(number) << QByteArray(number);
    }
    void no_line_runs_through_a_text_or_touches_it() {
        QFETCH(QByteArray, number);
        compareUnstruck(number.constData(), "US");
        compareUnstruck(number.constData(), "METRIC");
    }

    void texts_stand_in_the_middle_of_their_cells() {
        const OrderedCanvas sheet = sheetOf("K19013XP0", "US");
        int cells = 0;
        for (std::size_t i = 1; i < sheet.pieces.size(); ++i) {
            const auto* cell = std::get_if<RecordingCanvas::Rectangle>(&sheet.pieces[i - 1]);
            const auto* text = std::get_if<RecordingCanvas::Text>(&sheet.pieces[i]);
            if (cell == nullptr || text == nullptr || text->look.alignment != Alignment::Centre) continue;
            ++cells;
            const double middle = (cell->box.top + cell->box.bottom) / 2.0;
            QVERIFY2(std::abs(middleOf(*text, "H") - middle) < 0.01, text->text.c_str());
            const PageBox ink = inkOf(*text);
            QVERIFY2(std::abs((ink.left + ink.right) / 2.0 - (cell->box.left + cell->box.right) / 2.0) < 0.03,
                     text->text.c_str());
        }
        // Headings of three tables, 11 cells of ratings, 14 of fits.
        QCOMPARE(cells, 28);
    }

    void the_runouts_stand_in_the_middle_of_their_frames() {
        for (const char* const number : {"K19013XP0", "K19013AR0", "K19013BR0N"}) {
            const OrderedCanvas sheet = sheetOf(number, "US");
            int found = 0;
            for (const auto& piece : sheet.pieces) {
                const auto* text = std::get_if<RecordingCanvas::Text>(&piece);
                if (text == nullptr || text->look.typeface != Typeface::Courier) continue;
                if (text->box.top != 6.102 && text->box.top != 4.91) continue;
                ++found;
                const PageBox ink = inkOf(*text);
                const auto [below, above] = levelsAround(sheet, ink);
                QVERIFY2(above - below < 0.26, "the frame's lines are those next to the text");
                QVERIFY(std::abs(middleOf(*text, "0") - (above + below) / 2.0) < 0.01);
            }
            QCOMPARE(found, 2);
        }
    }

    void a_patch_ends_at_its_points_and_a_line_is_round() {
        QImage picture(400, 400, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        // A tenth of an inch wide, then one and a half points; the page's upper left corner is in view.
        PainterCanvas canvas(painter, papers::kLetter, 200.0);
        canvas.line({0.5, 10.5}, {1.5, 10.5}, {colours::kRed, 91440.0, 0});
        canvas.line({0.5, 10.0}, {1.5, 10.0}, {colours::kRed, 38099.0, 0});
        painter.end();
        const auto red = [&](double x, double y) {
            return picture.pixelColor(static_cast<int>(x * 200.0), static_cast<int>((11.0 - y) * 200.0))
                       .green() < 128;
        };
        QVERIFY(red(0.51, 10.54) && red(1.49, 10.46));
        QVERIFY(!red(0.48, 10.5) && !red(1.52, 10.5));
        QVERIFY(red(0.49, 10.0) && !red(0.46, 10.0));
    }

    void the_info_box_ends_at_the_margin() {
        const OrderedCanvas sheet = sheetOf("K19013XP0", "US");
        double widest = 0.0;
        for (const auto& piece : sheet.pieces) {
            if (const auto* box = std::get_if<RecordingCanvas::Rectangle>(&piece))
                widest = std::max(widest, box->box.right);
        }
        QCOMPARE(widest, 8.0);
    }
};

QTEST_MAIN(SheetLooksTest)
#include "SheetLooksTest.moc"
