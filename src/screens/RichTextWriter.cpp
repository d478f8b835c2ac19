#include "screens/RichTextWriter.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <cmath>

#include "help/RichDocument.h"
#include "paint/PainterCanvas.h"

namespace norlaplan {
namespace {

constexpr double kTwipsPerPixel = 15.0;
/// Of one picture, and of all that a document shows.
constexpr int kMostPixels = 16 * 1000 * 1000;
constexpr int kMostPixelsInAll = 20 * 1000 * 1000;
/// Of a word that has to fit a line; the layout takes the square of its length.
constexpr int kLongestWord = 200;
/// The viewer has no pages: a new one shows as a wide gap.
constexpr double kPageGap = 48.0;
constexpr int kDefaultCell = 1440;
constexpr char16_t kNoWidth = 0x200B;

double pixels(int twips) {
    return twips / kTwipsPerPixel;
}

/// The metric twins of the fonts that documents name, which every machine with this program has.
QString familyFor(const std::string& font) {
    if (font.find("Courier") != std::string::npos) return "Liberation Mono";
    if (font.find("Times") != std::string::npos || font.find("Roman") != std::string::npos)
        return "Liberation Serif";
    if (font.find("Arial") != std::string::npos || font.empty()) return "Liberation Sans";
    return QString::fromStdString(font);
}

QTextCharFormat formatOf(const CharacterLook& look) {
    QTextCharFormat format;
    format.setFontFamilies({familyFor(look.font), "Liberation Sans"});
    format.setFontPointSize(look.points);
    format.setFontWeight(look.bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(look.italic);
    format.setFontUnderline(look.underline);
    format.setFontStrikeOut(look.strike);
    if (look.script == Script::Sub) format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    if (look.script == Script::Super) format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (look.colour) format.setForeground(colourOf(*look.colour));
    if (look.highlight) format.setBackground(colourOf(*look.highlight));
    return format;
}

QList<QTextOption::Tab> tabsOf(const ParagraphLook& look) {
    constexpr QTextOption::TabType kKinds[] = {QTextOption::LeftTab, QTextOption::CenterTab,
                                               QTextOption::RightTab, QTextOption::DelimiterTab};
    QList<QTextOption::Tab> tabs;
    // Stops count from where the first line starts, whose end of a hanging indent is one that no word states.
    const int start = look.leftIndent + look.firstIndent;
    if (look.firstIndent < 0) tabs.append(QTextOption::Tab(pixels(-look.firstIndent), QTextOption::LeftTab));
    for (const TabStop& tab : look.tabs) {
        if (tab.position <= std::max(start, look.leftIndent)) continue;
        const bool decimal = tab.alignment == TabAlignment::Decimal;
        tabs.append(QTextOption::Tab(pixels(tab.position - start), kKinds[static_cast<int>(tab.alignment)],
                                     decimal ? '.' : QChar()));
    }
    return tabs;
}

QTextBlockFormat formatOf(const ParagraphLook& look) {
    QTextBlockFormat format;
    constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight,
                                             Qt::AlignJustify};
    format.setAlignment(kAlignments[static_cast<int>(look.alignment)]);
    format.setLeftMargin(pixels(look.leftIndent));
    format.setRightMargin(pixels(look.rightIndent));
    format.setTextIndent(pixels(look.firstIndent));
    format.setTopMargin(pixels(look.spaceBefore));
    format.setBottomMargin(pixels(look.spaceAfter));
    if (look.lineSpacing != 1.0) {
        format.setLineHeight(look.lineSpacing * 100.0, QTextBlockFormat::ProportionalHeight);
    }
    if (look.fill) format.setBackground(colourOf(*look.fill));
    if (look.pageBreakBefore) {
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        format.setTopMargin(kPageGap);
    }
    if (const auto tabs = tabsOf(look); !tabs.isEmpty()) format.setTabPositions(tabs);
    return format;
}

/// The text with a place of no width to break at in every word that is too long for any line. `letters` are
/// those of the word that the text goes on with, and then those that it ends with.
QString breakable(const QString& text, int& letters) {
    QString broken;
    broken.reserve(text.size() + text.size() / kLongestWord);
    for (const QChar letter : text) {
        if (letter.isSpace()) {
            letters = 0;
        } else if (letters >= kLongestWord && !letter.isLowSurrogate()) {
            broken += QChar(kNoWidth);
            letters = 1;
        } else {
            ++letters;
        }
        broken += letter;
    }
    return broken;
}

/// Writes paragraphs, and remembers how many pixels the document's pictures have by then.
class ParagraphWriter {
  public:
    void write(const Paragraph& paragraph, QTextCursor& cursor) {
        cursor.setBlockFormat(formatOf(paragraph.look));
        // Without a sign of its own, an empty line beside a table would have no height.
        if (paragraph.runs.empty()) cursor.insertText(QChar(kNoWidth), formatOf(paragraph.endLook));
        int letters = 0;
        for (const Run& run : paragraph.runs) {
            if (const auto* const text = std::get_if<TextRun>(&run)) {
                QString shown = QString::fromStdString(text->text);
                // A line break inside a paragraph is no paragraph's end.
                shown.replace('\n', QChar::LineSeparator);
                cursor.insertText(breakable(shown, letters), formatOf(text->look));
            } else {
                writePicture(std::get<PictureRun>(run), cursor);
            }
        }
    }

  private:
    /// A damaged picture is left out; one that can only be meant to fill the memory is told.
    void writePicture(const PictureRun& picture, QTextCursor& cursor) {
        QByteArray bytes =
            QByteArray::fromRawData(picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size()));
        QBuffer buffer(&bytes);
        QImageReader reader(&buffer, picture.format.c_str());
        reader.setAutoDetectImageFormat(false);
        const QSize size = reader.size();
        if (!size.isValid() || size.isEmpty()) return;
        if (!takePixels(size)) {
            cursor.insertText("(This picture is too large to be shown.)", formatOf(CharacterLook{}));
            return;
        }
        const QImage image = reader.read();
        if (!image.isNull()) insert(image, picture, cursor);
    }

    /// False when the pictures would then have more pixels than a document may show.
    bool takePixels(QSize size) {
        if (size.width() > std::min(kMostPixels, kMostPixelsInAll - pixels_) / size.height()) return false;
        pixels_ += size.width() * size.height();
        return true;
    }

    static void insert(const QImage& image, const PictureRun& picture, QTextCursor& cursor) {
        QTextImageFormat format;
        const QString name = QString("picture-%1").arg(cursor.position());
        cursor.document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
        format.setName(name);
        if (picture.width > 0) format.setWidth(pixels(picture.width));
        if (picture.height > 0) format.setHeight(pixels(picture.height));
        cursor.insertImage(format);
    }

    int pixels_ = 0;
};

QList<QTextLength> columnWidths(const TableRow& row) {
    QList<QTextLength> widths;
    int left = row.leftEdge;
    for (const TableCell& cell : row.cells) {
        const int right = cell.look.rightEdge > left ? cell.look.rightEdge : left + kDefaultCell;
        widths.append(QTextLength(QTextLength::FixedLength, pixels(right - left)));
        left = right;
    }
    return widths;
}

bool areOfOneTable(const TableRow& a, const TableRow& b) {
    return a.leftEdge == b.leftEdge && std::equal(a.cells.begin(), a.cells.end(), b.cells.begin(),
                                                  b.cells.end(), [](const TableCell& x, const TableCell& y) {
                                                      return x.look.rightEdge == y.look.rightEdge;
                                                  });
}

QTextTableCellFormat formatOf(const CellLook& look) {
    const QColor line(150, 156, 180);
    QTextTableCellFormat format;
    const auto side = [&](bool has, auto setStyle, auto setWidth, auto setBrush) {
        (format.*setStyle)(has ? QTextFrameFormat::BorderStyle_Solid : QTextFrameFormat::BorderStyle_None);
        (format.*setWidth)(has ? 1.0 : 0.0);
        (format.*setBrush)(line);
    };
    using Format = QTextTableCellFormat;
    side(look.left, &Format::setLeftBorderStyle, &Format::setLeftBorder, &Format::setLeftBorderBrush);
    side(look.top, &Format::setTopBorderStyle, &Format::setTopBorder, &Format::setTopBorderBrush);
    side(look.right, &Format::setRightBorderStyle, &Format::setRightBorder, &Format::setRightBorderBrush);
    side(look.bottom, &Format::setBottomBorderStyle, &Format::setBottomBorder, &Format::setBottomBorderBrush);
    if (look.fill) format.setBackground(colourOf(*look.fill));
    return format;
}

void fillCell(ParagraphWriter& writer, QTextTableCell place, const TableCell& cell) {
    QTextCursor inside = place.firstCursorPosition();
    for (std::size_t i = 0; i < cell.paragraphs.size(); ++i) {
        if (i > 0) inside.insertBlock();
        writer.write(cell.paragraphs[i], inside);
    }
    // The cell's look is kept where that of its first paragraph is, so it comes last.
    place.setFormat(formatOf(cell.look));
}

/// The room below the paragraph before a table, which its own margin doesn't give there.
double roomAbove(const std::vector<Block>& blocks, std::size_t first) {
    const auto* const before = first == 0 ? nullptr : std::get_if<Paragraph>(&blocks[first - 1]);
    return before == nullptr ? 0.0 : pixels(before->look.spaceAfter);
}

/// A table of the rows from `first` to before `end`, which have the same cells.
void insertTable(ParagraphWriter& writer, QTextCursor& cursor, const std::vector<Block>& blocks,
                 std::size_t first, std::size_t end) {
    const auto& head = std::get<TableRow>(blocks[first]);
    QTextTableFormat format;
    format.setCellPadding(4.0);
    format.setCellSpacing(0.0);
    format.setBorderCollapse(true);
    format.setBorder(0.0);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_None);
    format.setLeftMargin(pixels(std::max(head.leftEdge, 0)));
    format.setTopMargin(roomAbove(blocks, first));
    format.setColumnWidthConstraints(columnWidths(head));
    QTextTable* const table =
        cursor.insertTable(static_cast<int>(end - first), static_cast<int>(head.cells.size()), format);
    for (std::size_t i = first; i < end; ++i) {
        const TableRow& row = std::get<TableRow>(blocks[i]);
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
            fillCell(writer, table->cellAt(static_cast<int>(i - first), static_cast<int>(cell)),
                     row.cells[cell]);
        }
    }
    cursor.movePosition(QTextCursor::End);
}

std::size_t tableEnd(const std::vector<Block>& blocks, std::size_t first) {
    std::size_t end = first + 1;
    while (end < blocks.size() && std::holds_alternative<TableRow>(blocks[end]) &&
           areOfOneTable(std::get<TableRow>(blocks[first]), std::get<TableRow>(blocks[end]))) {
        ++end;
    }
    return end;
}

}  // namespace

void writeRichText(const RichDocument& document, QTextCursor& cursor) {
    const std::vector<Block>& blocks = document.blocks;
    ParagraphWriter writer;
    bool onFreshLine = true;
    for (std::size_t i = 0; i < blocks.size();) {
        if (std::holds_alternative<TableRow>(blocks[i])) {
            const std::size_t end = tableEnd(blocks, i);
            insertTable(writer, cursor, blocks, i, end);
            onFreshLine = true;
            i = end;
            continue;
        }
        if (!onFreshLine) cursor.insertBlock();
        writer.write(std::get<Paragraph>(blocks[i]), cursor);
        onFreshLine = false;
        ++i;
    }
    if (!document.cutShort) return;
    cursor.insertBlock();
    writer.write({{}, {TextRun{"The rest of this document is too long to be shown.", {}}}, {}}, cursor);
}

}  // namespace norlaplan
