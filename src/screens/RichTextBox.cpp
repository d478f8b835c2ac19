#include "screens/RichTextBox.h"

#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <algorithm>

#include "help/RtfReader.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr double kTwipsPerPixel = 15.0;
constexpr int kWidestPicture = 2000;

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
    if (look.hasColour) {
        const std::uint32_t c = look.colour;
        format.setForeground(QColor(static_cast<int>(c & 0xFFU), static_cast<int>(c >> 8U & 0xFFU),
                                    static_cast<int>(c >> 16U & 0xFFU)));
    }
    return format;
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
    QList<QTextOption::Tab> tabs;
    for (const int tab : look.tabs)
        tabs.append(QTextOption::Tab(pixels(tab), QTextOption::LeftTab));
    if (!tabs.isEmpty()) format.setTabPositions(tabs);
    return format;
}

void insertPicture(QTextCursor& cursor, const PictureRun& picture) {
    QImage image;
    image.loadFromData(reinterpret_cast<const uchar*>(picture.bytes.data()),
                       static_cast<int>(picture.bytes.size()), picture.format.c_str());
    if (image.isNull()) return;
    if (image.width() > kWidestPicture) image = image.scaledToWidth(kWidestPicture, Qt::SmoothTransformation);
    QTextImageFormat format;
    const QString name = QString("picture-%1").arg(cursor.position());
    cursor.document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
    format.setName(name);
    if (picture.width > 0) format.setWidth(pixels(picture.width));
    if (picture.height > 0) format.setHeight(pixels(picture.height));
    cursor.insertImage(format);
}

void insertParagraph(QTextCursor& cursor, const Paragraph& paragraph) {
    cursor.setBlockFormat(formatOf(paragraph.look));
    for (const Run& run : paragraph.runs) {
        if (const auto* const text = std::get_if<TextRun>(&run)) {
            QString shown = QString::fromStdString(text->text);
            // A line break inside a paragraph is no paragraph's end.
            shown.replace('\n', QChar::LineSeparator);
            cursor.insertText(shown, formatOf(text->look));
        } else {
            insertPicture(cursor, std::get<PictureRun>(run));
        }
    }
}

QList<QTextLength> columnWidths(const TableRow& row, int columns) {
    QList<QTextLength> widths;
    int left = 0;
    for (int column = 0; column < columns; ++column) {
        const auto at = static_cast<std::size_t>(column);
        const int right = at < row.edges.size() ? row.edges[at] : left + 1440;
        widths.append(QTextLength(QTextLength::FixedLength, pixels(std::clamp(right - left, 150, 15000))));
        left = right;
    }
    return widths;
}

/// A table of the rows from `first` to before `end`.
void insertTable(QTextCursor& cursor, const std::vector<Block>& blocks, std::size_t first, std::size_t end) {
    int columns = 1;
    for (std::size_t i = first; i < end; ++i) {
        columns = std::max(columns, static_cast<int>(std::get<TableRow>(blocks[i]).cells.size()));
    }
    QTextTableFormat format;
    format.setCellPadding(4.0);
    format.setCellSpacing(0.0);
    format.setBorderCollapse(true);
    format.setBorder(1.0);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(QColor(170, 174, 194));
    format.setColumnWidthConstraints(columnWidths(std::get<TableRow>(blocks[first]), columns));
    QTextTable* const table = cursor.insertTable(static_cast<int>(end - first), columns, format);
    for (std::size_t i = first; i < end; ++i) {
        const TableRow& row = std::get<TableRow>(blocks[i]);
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
            QTextCursor inside =
                table->cellAt(static_cast<int>(i - first), static_cast<int>(cell)).firstCursorPosition();
            for (std::size_t p = 0; p < row.cells[cell].size(); ++p) {
                if (p > 0) inside.insertBlock();
                insertParagraph(inside, row.cells[cell][p]);
            }
        }
    }
    cursor.movePosition(QTextCursor::End);
}

}  // namespace

RichTextBox::RichTextBox() {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextBrowserInteraction);
    setPalette(theme::paper());
    document()->setDocumentMargin(24.0);
}

void RichTextBox::showRtf(const std::string& rtf) {
    if (const auto read = readRtf(rtf)) {
        showDocument(*read);
    } else {
        setPlainText("This document can't be shown: it is not a rich text file.");
    }
}

void RichTextBox::showDocument(const RichDocument& read) {
    clear();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    const std::vector<Block>& blocks = read.blocks;
    for (std::size_t i = 0; i < blocks.size();) {
        if (std::holds_alternative<TableRow>(blocks[i])) {
            std::size_t end = i;
            while (end < blocks.size() && std::holds_alternative<TableRow>(blocks[end]))
                ++end;
            insertTable(cursor, blocks, i, end);
            i = end;
            continue;
        }
        insertParagraph(cursor, std::get<Paragraph>(blocks[i]));
        ++i;
        if (i < blocks.size() && std::holds_alternative<Paragraph>(blocks[i])) cursor.insertBlock();
    }
    cursor.endEditBlock();
    moveCursor(QTextCursor::Start);
}

}  // namespace norlaplan
