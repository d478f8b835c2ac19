#include <QBuffer>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QtTest>

#include "help/RichDocument.h"
#include "screens/RichTextWriter.h"

namespace norlaplan::testing {
namespace {

template <typename Look>
void setIn(Look&) {}
template <typename Look, typename Value, typename... More>
void setIn(Look& look, Value Look::*part, const std::type_identity_t<Value>& value, const More&... more) {
    look.*part = value;
    setIn(look, more...);
}
/// A look with these parts set, each named before its value, and the others as they are by themselves.
template <typename Look, typename Value, typename... More>
Look with(Value Look::*part, const std::type_identity_t<Value>& value, const More&... more) {
    Look look;
    setIn(look, part, value, more...);
    return look;
}

/// What RichTextWriter makes of a document.
struct Written {
    explicit Written(const std::vector<Block>& blocks, bool cutShort = false) {
        QTextCursor cursor(&document);
        writeRichText({blocks, cutShort}, cursor);
    }
    QTextCharFormat letters(int at = 0) const { return document.find("x", at).charFormat(); }
    QTextBlockFormat block() const { return document.find("x").blockFormat(); }
    QTextTable* table() const { return document.find("x").currentTable(); }

    QTextDocument document;
};

Paragraph paragraph(const ParagraphLook& look, const CharacterLook& letters = {}) {
    return {look, {TextRun{"x", letters}}, {}};
}

TableRow row(int leftEdge, const std::vector<CellLook>& cells) {
    TableRow made{leftEdge, {}};
    for (const CellLook& look : cells)
        made.cells.push_back({look, {paragraph({})}});
    return made;
}

/// The stops of a paragraph, in pixels of 15 twips.
QList<double> stopsOf(const ParagraphLook& look) {
    QList<double> places;
    for (const QTextOption::Tab& tab : Written({paragraph(look)}).block().tabPositions())
        places << tab.position;
    return places;
}

/// writeRichText by its formats: RichTextWriter turns twips into pixels, 1440 and 96 of which are an inch.
class RichTextWriterTest : public QObject {
    Q_OBJECT

  private slots:
    void fontsHaveTheirTwins_data() {
        QTest::addColumn<QString>("named");
        QTest::addColumn<QString>("shown");
        QTest::newRow("typewriter") << "Courier New"
                                    << "Liberation Mono";
        QTest::newRow("serifs") << "Times New Roman"
                                << "Liberation Serif";
        QTest::newRow("Roman alone") << "CG Roman"
                                     << "Liberation Serif";
        QTest::newRow("Times alone") << "Times"
                                     << "Liberation Serif";
        QTest::newRow("no serifs") << "Arial"
                                   << "Liberation Sans";
        QTest::newRow("none named") << ""
                                    << "Liberation Sans";
        QTest::newRow("another") << "Symbol"
                                 << "Symbol";
    }
    void fontsHaveTheirTwins() {
        QFETCH(QString, named);
        QFETCH(QString, shown);
        CharacterLook look;
        look.font = named.toStdString();
        const QStringList families = Written({paragraph({}, look)}).letters().fontFamilies().toStringList();
        QCOMPARE(families, QStringList({shown, "Liberation Sans"}));
    }

    void eachLookOfALetterIsItsOwn() {
        const QTextCharFormat plain = Written({paragraph({})}).letters();
        QCOMPARE(plain.fontPointSize(), 12.0);
        QCOMPARE(plain.fontWeight(), int(QFont::Normal));
        QVERIFY(!plain.fontItalic() && !plain.fontUnderline() && !plain.fontStrikeOut());
        QCOMPARE(plain.verticalAlignment(), QTextCharFormat::AlignNormal);
        QCOMPARE(plain.foreground().style(), Qt::NoBrush);
        QCOMPARE(plain.background().style(), Qt::NoBrush);
        const auto lettersOf = [](const CharacterLook& look) {
            return Written({paragraph({}, look)}).letters();
        };
        QCOMPARE(lettersOf(with(&CharacterLook::points, 9.5)).fontPointSize(), 9.5);
        QCOMPARE(lettersOf(with(&CharacterLook::bold, true)).fontWeight(), int(QFont::Bold));
        QVERIFY(lettersOf(with(&CharacterLook::italic, true)).fontItalic() &&
                !lettersOf(with(&CharacterLook::italic, true)).fontUnderline());
        QVERIFY(lettersOf(with(&CharacterLook::underline, true)).fontUnderline() &&
                !lettersOf(with(&CharacterLook::underline, true)).fontStrikeOut());
        QVERIFY(lettersOf(with(&CharacterLook::strike, true)).fontStrikeOut() &&
                !lettersOf(with(&CharacterLook::strike, true)).fontItalic());
        QCOMPARE(lettersOf(with(&CharacterLook::script, Script::Sub)).verticalAlignment(),
                 QTextCharFormat::AlignSubScript);
        QCOMPARE(lettersOf(with(&CharacterLook::script, Script::Super)).verticalAlignment(),
                 QTextCharFormat::AlignSuperScript);
        QCOMPARE(lettersOf(with(&CharacterLook::colour, 0x0000FFU)).foreground().color(), QColor(255, 0, 0));
        QCOMPARE(lettersOf(with(&CharacterLook::highlight, 0x00FF00U)).background().color(),
                 QColor(0, 255, 0));
    }

    void eachLookOfAParagraphIsItsOwn() {
        const auto blockOf = [](const ParagraphLook& look) { return Written({paragraph(look)}).block(); };
        const QTextBlockFormat plain = blockOf({});
        for (const double length : {plain.leftMargin(), plain.rightMargin(), plain.textIndent(),
                                    plain.topMargin(), plain.bottomMargin()})
            QCOMPARE(length, 0.0);
        QCOMPARE(plain.lineHeightType(), int(QTextBlockFormat::SingleHeight));
        QVERIFY(plain.tabPositions().isEmpty());
        QCOMPARE(plain.pageBreakPolicy(), QTextFormat::PageBreak_Auto);
        QCOMPARE(blockOf(with(&ParagraphLook::leftIndent, 720)).leftMargin(), 48.0);
        QCOMPARE(blockOf(with(&ParagraphLook::rightIndent, 360)).rightMargin(), 24.0);
        QCOMPARE(blockOf(with(&ParagraphLook::firstIndent, 150)).textIndent(), 10.0);
        QCOMPARE(blockOf(with(&ParagraphLook::spaceBefore, 240)).topMargin(), 16.0);
        QCOMPARE(blockOf(with(&ParagraphLook::spaceAfter, 120)).bottomMargin(), 8.0);
        QCOMPARE(blockOf(with(&ParagraphLook::lineSpacing, 1.5)).lineHeight(), 150.0);
        QCOMPARE(blockOf(with(&ParagraphLook::lineSpacing, 1.5)).lineHeightType(),
                 int(QTextBlockFormat::ProportionalHeight));
        QCOMPARE(blockOf(with(&ParagraphLook::fill, 0xFF0000U)).background().color(), QColor(0, 0, 255));
        QCOMPARE(blockOf(with(&ParagraphLook::pageBreakBefore, true)).pageBreakPolicy(),
                 QTextFormat::PageBreak_AlwaysBefore);
        QCOMPARE(blockOf(with(&ParagraphLook::pageBreakBefore, true)).topMargin(), 48.0);
        for (const auto& [stated, shown] : {std::pair{TextAlignment::Left, Qt::AlignLeft},
                                            std::pair{TextAlignment::Centre, Qt::AlignHCenter},
                                            std::pair{TextAlignment::Right, Qt::AlignRight},
                                            std::pair{TextAlignment::Justified, Qt::AlignJustify}})
            QCOMPARE(blockOf(with(&ParagraphLook::alignment, stated)).alignment() & Qt::AlignHorizontal_Mask,
                     shown);
    }

    void tabsCountFromWhereTheFirstLineStarts() {
        // Stated from the page's margin: 1440 and 2880 twips are 96 and 192 pixels.
        QCOMPARE(stopsOf(with(&ParagraphLook::tabs, std::vector<TabStop>{{1440}, {2880}})),
                 QList<double>({96.0, 192.0}));
        QCOMPARE(stopsOf(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::tabs,
                              std::vector<TabStop>{{1440}, {2880}})),
                 QList<double>({48.0, 144.0}));
        QCOMPARE(stopsOf(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::firstIndent, 180,
                              &ParagraphLook::tabs, std::vector<TabStop>{{1440}})),
                 QList<double>({36.0}));
        // The end of a hanging indent is a stop of its own, as far in as the first line hangs out.
        QCOMPARE(stopsOf(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::firstIndent, -360)),
                 QList<double>({24.0}));
        QCOMPARE(stopsOf(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::firstIndent, -360,
                              &ParagraphLook::tabs, std::vector<TabStop>{{1440}})),
                 QList<double>({24.0, 72.0}));
    }

    void tabsThatLieBeforeTheTextAreNone() {
        QCOMPARE(stopsOf(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::tabs,
                              std::vector<TabStop>{{720}, {700}, {735}})),
                 QList<double>({1.0}));
        QCOMPARE(stopsOf(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::firstIndent, 300,
                              &ParagraphLook::tabs, std::vector<TabStop>{{1020}, {1035}})),
                 QList<double>({1.0}));
        QCOMPARE(stopsOf(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::firstIndent, -360,
                              &ParagraphLook::tabs, std::vector<TabStop>{{500}})),
                 QList<double>({24.0}));
    }

    void tabsAlignAsStated() {
        using Kind = QTextOption;
        for (const auto& [stated, shown] :
             {std::pair{TabAlignment::Left, Kind::LeftTab}, std::pair{TabAlignment::Centre, Kind::CenterTab},
              std::pair{TabAlignment::Right, Kind::RightTab},
              std::pair{TabAlignment::Decimal, Kind::DelimiterTab}}) {
            const auto tabs =
                Written({paragraph(with(&ParagraphLook::tabs, std::vector<TabStop>{{1440, stated}}))})
                    .block()
                    .tabPositions();
            QCOMPARE(tabs.size(), 1);
            QCOMPARE(tabs[0].type, shown);
            QCOMPARE(tabs[0].delimiter, stated == TabAlignment::Decimal ? QChar('.') : QChar());
        }
        const auto hanging =
            Written({paragraph(with(&ParagraphLook::leftIndent, 720, &ParagraphLook::firstIndent, -360))})
                .block()
                .tabPositions();
        QCOMPARE(hanging[0].type, Kind::LeftTab);
    }

    void paragraphsFollowEachOtherAndBreaksStayInsideThem() {
        Written written(
            {Paragraph{{}, {TextRun{"one\ntwo", {}}}, {}},
             Paragraph{{}, {}, with(&CharacterLook::points, 30.0)},
             Paragraph{{}, {TextRun{"thr", {}}, TextRun{"ee", with(&CharacterLook::bold, true)}}, {}}});
        QCOMPARE(written.document.blockCount(), 3);
        QTextBlock block = written.document.firstBlock();
        QCOMPARE(block.text(), QString("one") + QChar::LineSeparator + "two");
        block = block.next();
        QCOMPARE(block.text(), QString(QChar(0x200B)));
        QCOMPARE(block.begin().fragment().charFormat().fontPointSize(), 30.0);
        QCOMPARE(block.next().text(), QString("three"));
    }

    void aDocumentThatIsCutShortSaysSoAtItsEnd() {
        QCOMPARE(Written({paragraph({})}, true).document.toPlainText(),
                 QString("x\nThe rest of this document is too long to be shown."));
        QCOMPARE(Written({paragraph({})}).document.toPlainText(), QString("x"));
    }

    void aPictureHasItsStatedSizeOrItsOwn() {
        QImage red(30, 20, QImage::Format_RGB32);
        red.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        red.save(&buffer, "PNG");
        const auto formatOf = [&](int width, int height) {
            const PictureRun run{bytes.toStdString(), "png", width, height};
            const Written written({Paragraph{{}, {run}, {}}});
            return written.document.find(QString(QChar::ObjectReplacementCharacter))
                .charFormat()
                .toImageFormat();
        };
        QCOMPARE(formatOf(1440, 720).width(), 96.0);
        QCOMPARE(formatOf(1440, 720).height(), 48.0);
        QVERIFY(!formatOf(0, 0).hasProperty(QTextFormat::ImageWidth));
        QVERIFY(!formatOf(0, 0).hasProperty(QTextFormat::ImageHeight));
        QVERIFY(formatOf(1440, 0).hasProperty(QTextFormat::ImageWidth));
        // What is no picture leaves nothing.
        QCOMPARE(
            Written({Paragraph{{}, {PictureRun{"no picture", "png", 15, 15}}, {}}}).document.toPlainText(),
            QString());
    }

    void rowsWithTheSameCellsAreOneTable() {
        const std::vector<CellLook> two = {with(&CellLook::rightEdge, 2000),
                                           with(&CellLook::rightEdge, 4500)};
        const std::vector<CellLook> other = {with(&CellLook::rightEdge, 2100),
                                             with(&CellLook::rightEdge, 4500)};
        const auto tablesOf = [](const std::vector<Block>& blocks) {
            const Written written(blocks);
            QStringList sizes;
            for (QTextFrame* const frame : written.document.rootFrame()->childFrames()) {
                auto* const table = qobject_cast<QTextTable*>(frame);
                sizes << QString("%1x%2").arg(table->rows()).arg(table->columns());
            }
            return sizes;
        };
        QCOMPARE(tablesOf({row(0, two), row(0, two), row(0, two)}), QStringList({"3x2"}));
        QCOMPARE(tablesOf({row(0, two), row(0, other)}), QStringList({"1x2", "1x2"}));
        QCOMPARE(tablesOf({row(0, two), row(100, two)}), QStringList({"1x2", "1x2"}));
        QCOMPARE(tablesOf({row(0, two), paragraph({}), row(0, two)}), QStringList({"1x2", "1x2"}));
        QCOMPARE(tablesOf({row(0, two), row(0, {with(&CellLook::rightEdge, 2000)})}),
                 QStringList({"1x2", "1x1"}));
    }

    void aTableStandsWhereItsEdgesAre() {
        const Written written({row(300, {with(&CellLook::rightEdge, 2100), with(&CellLook::rightEdge, 4500),
                                         with(&CellLook::rightEdge, 4500)})});
        const QTextTableFormat format = written.table()->format();
        QCOMPARE(format.leftMargin(), 20.0);
        QCOMPARE(format.topMargin(), 0.0);
        QCOMPARE(format.cellSpacing(), 0.0);
        QCOMPARE(format.cellPadding(), 4.0);
        QVERIFY(format.borderCollapse());
        QCOMPARE(format.border(), 0.0);
        const auto widths = format.columnWidthConstraints();
        QCOMPARE(widths.size(), 3);
        // 1800 and 2400 twips; a cell without a width of its own has an inch.
        for (const auto& [column, width] : {std::pair{0, 120.0}, std::pair{1, 160.0}, std::pair{2, 96.0}}) {
            QCOMPARE(widths[column].rawValue(), width);
            QCOMPARE(widths[column].type(), QTextLength::FixedLength);
        }
        QCOMPARE(Written({row(-150, {with(&CellLook::rightEdge, 2100)})}).table()->format().leftMargin(),
                 0.0);
    }

    void aTableKeepsTheRoomBelowTheParagraphBeforeIt() {
        const Written written({Paragraph{with(&ParagraphLook::spaceAfter, 300), {TextRun{"before", {}}}, {}},
                               row(0, {with(&CellLook::rightEdge, 900)})});
        QCOMPARE(written.table()->format().topMargin(), 20.0);
    }

    void aCellHasTheLinesAndTheFillThatItStates() {
        using Line = QTextFrameFormat;
        const CellLook left = with(&CellLook::rightEdge, 900, &CellLook::left, true),
                       top = with(&CellLook::rightEdge, 900, &CellLook::top, true),
                       right = with(&CellLook::rightEdge, 900, &CellLook::right, true),
                       bottom = with(&CellLook::rightEdge, 900, &CellLook::bottom, true);
        const auto formatOf = [](const CellLook& look) {
            return Written({row(0, {look})}).table()->cellAt(0, 0).format().toTableCellFormat();
        };
        const auto linesOf = [&](const CellLook& look) {
            const QTextTableCellFormat format = formatOf(look);
            QString lines;
            const auto add = [&](Line::BorderStyle style, double width, char letter) {
                if (style == Line::BorderStyle_Solid && width == 1.0) lines += letter;
                if ((style == Line::BorderStyle_None) != (width == 0.0)) lines += '?';
            };
            add(format.leftBorderStyle(), format.leftBorder(), 'l');
            add(format.topBorderStyle(), format.topBorder(), 't');
            add(format.rightBorderStyle(), format.rightBorder(), 'r');
            add(format.bottomBorderStyle(), format.bottomBorder(), 'b');
            return lines;
        };
        QCOMPARE(linesOf(with(&CellLook::rightEdge, 900)), QString());
        QCOMPARE(linesOf(left), QString("l"));
        QCOMPARE(linesOf(top), QString("t"));
        QCOMPARE(linesOf(right), QString("r"));
        QCOMPARE(linesOf(bottom), QString("b"));
        QCOMPARE(formatOf(with(&CellLook::rightEdge, 900)).background().style(), Qt::NoBrush);
        QCOMPARE(formatOf(with(&CellLook::rightEdge, 900, &CellLook::fill, 0x00FF00U)).background().color(),
                 QColor(0, 255, 0));
    }

    void theTextGoesOnBehindATable() {
        const Written written(
            {row(0, {with(&CellLook::rightEdge, 900)}), Paragraph{{}, {TextRun{"behind", {}}}, {}}});
        QVERIFY(written.table() != nullptr);
        QCOMPARE(written.document.find("behind").currentTable(), nullptr);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::RichTextWriterTest)
#include "RichTextWriterTest.moc"
