#include <QBuffer>
#include <QFontInfo>
#include <QImage>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextEdit>
#include <QTextTable>
#include <algorithm>

#include "screens/Form2.h"
#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/StartControls.h"
#include "support/ProcessorTime.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

struct Viewer : Program {
    explicit Viewer(const std::string& content = "{\\rtf1\\ansi Plain words}") {
        files.write("note.rtf", content);
        screens.show(forms::kMainMenu);
        showText(screens, "\\note.rtf", "A note", "Exit Note");
    }
    QWidget& text() { return control<QWidget>(forms::kTextViewer, "RichTextBox1"); }
    QTextDocument& document() { return *control<QTextEdit>(forms::kTextViewer, "RichTextBox1").document(); }
    /// The look of the first character of `words`.
    QTextCharFormat lookOf(const char* words) { return document().find(words).charFormat(); }
    QWidget& button() { return control<QPushButton>(forms::kTextViewer, "Command1"); }
};

std::string hexOfPng(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png.toHex().toStdString();
}

}  // namespace

class ViewerTest : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kTextViewer, {kStartRows, startScenes()}), QStringList());
    }

    void it_shows_the_text_with_the_callers_title_and_button() {
        Viewer viewer;
        QCOMPARE(viewer.inFront(), std::string(forms::kTextViewer));
        QCOMPARE(viewer.screens.form(forms::kTextViewer).windowTitle(), QString("A note"));
        auto& button = viewer.control<QPushButton>(forms::kTextViewer, "Command1");
        QCOMPARE(button.text(), QString("Exit Note"));
        QCOMPARE(button.toolTip(), QString("Close File"));
        QVERIFY(viewer.control<QTextEdit>(forms::kTextViewer, "RichTextBox1")
                    .toPlainText()
                    .contains("Plain words"));
    }

    void characters_have_their_looks() {
        Viewer viewer(
            "{\\rtf1\\ansi{\\fonttbl{\\f0 Times New Roman;}{\\f1 Courier "
            "New;}}{\\colortbl;\\red255\\green0\\blue0;}"
            "{\\b bold}{\\i slanted}{\\ul underlined}{\\cf1 red}{\\fs48 large}{\\f1 typed}}");
        QCOMPARE(viewer.lookOf("bold").fontWeight(), int(QFont::Bold));
        QVERIFY(viewer.lookOf("slanted").fontItalic());
        QVERIFY(!viewer.lookOf("bold").fontItalic());
        QVERIFY(viewer.lookOf("underlined").fontUnderline());
        QCOMPARE(viewer.lookOf("red").foreground().color(), QColor(Qt::red));
        QCOMPARE(viewer.lookOf("large").fontPointSize(), 24.0);
        QVERIFY(QFontInfo(viewer.lookOf("typed").font()).fixedPitch());
    }

    void paragraphs_have_their_alignment() {
        Viewer viewer("{\\rtf1\\ansi\\pard left\\par\\pard\\qc middle\\par\\pard\\qr right\\par}");
        const auto alignment = [&](const char* words) {
            return viewer.document().find(words).blockFormat().alignment() & Qt::AlignHorizontal_Mask;
        };
        QCOMPARE(alignment("middle"), Qt::AlignHCenter);
        QCOMPARE(alignment("right"), Qt::AlignRight);
        QVERIFY(alignment("left") == Qt::AlignLeft || alignment("left") == Qt::Alignment());
    }

    void a_picture_is_shown_in_its_size() {
        QImage red(8, 4, QImage::Format_RGB32);
        red.fill(Qt::red);
        // 1440 twips are an inch.
        Viewer viewer("{\\rtf1\\ansi{\\pict\\pngblip\\picw8\\pich4\\picwgoal1440\\pichgoal720 " +
                      hexOfPng(red) + "}}");
        const QTextImageFormat format =
            viewer.document().find(QString(QChar::ObjectReplacementCharacter)).charFormat().toImageFormat();
        QVERIFY(format.isValid());
        QCOMPARE(format.width(), 2.0 * format.height());
        const QVariant kept = viewer.document().resource(QTextDocument::ImageResource, QUrl(format.name()));
        QCOMPARE(kept.value<QImage>().pixelColor(3, 2), QColor(Qt::red));
    }

    void a_table_has_cells_with_their_fill() {
        Viewer viewer(
            "{\\rtf1\\ansi{\\colortbl;\\red0\\green204\\blue255;}"
            "\\trowd\\clcbpat1\\cellx2000\\cellx4000\\pard\\intbl one\\cell two\\cell\\row\\pard after}");
        QTextTable* const table = viewer.document().find("one").currentTable();
        QVERIFY(table != nullptr);
        QCOMPARE(table->columns(), 2);
        QCOMPARE(table->cellAt(0, 0).format().background().color(), QColor(0, 204, 255));
        QCOMPARE(table->cellAt(0, 1).format().background().style(), Qt::NoBrush);
        QVERIFY(viewer.document().find("after").currentTable() == nullptr);
    }

    void a_file_that_is_no_rich_text_is_told_in_a_sentence() {
        Viewer viewer("%PDF-1.4");
        QCOMPARE(viewer.document().toPlainText(),
                 QString("This document can't be shown: it is not a rich text file."));
    }

    void a_missing_file_is_told_and_no_viewer_opens() {
        Viewer viewer;
        viewer.click(forms::kTextViewer, "Command1");
        viewer.screens.runAction("Warranty", [&] { showText(viewer.screens, "\\none.rtf", "None", "Exit"); });
        QCOMPARE(viewer.lastMessage().title, std::string("Run-time error '53'"));
        QCOMPARE(viewer.inFront(), std::string(forms::kMainMenu));
    }

    void pictures_that_would_fill_the_memory_are_told_in_their_places() {
        // One bit a pixel makes the file small; what is shown takes four bytes for each.
        QImage large(4000, 4000, QImage::Format_Mono);
        large.fill(0);
        const std::string picture = "{\\pict\\pngblip " + hexOfPng(large) + "}\\par ";
        std::string all;
        for (int i = 0; i < 20; ++i)
            all += picture;
        Viewer viewer("{\\rtf1\\ansi " + all + "}");
        const QString text = viewer.document().toPlainText();
        QCOMPARE(text.count(QChar::ObjectReplacementCharacter), 1);
        QCOMPARE(text.count("(This picture is too large to be shown.)"), 19);
    }

    void a_picture_behind_one_that_is_too_large_is_shown() {
        QImage huge(5000, 4000, QImage::Format_Mono), small(8, 4, QImage::Format_RGB32);
        huge.fill(0);
        small.fill(Qt::red);
        Viewer viewer("{\\rtf1\\ansi {\\pict\\pngblip " + hexOfPng(huge) + "}{\\pict\\pngblip " +
                      hexOfPng(small) + "}}");
        QCOMPARE(viewer.document().toPlainText(),
                 QString("(This picture is too large to be shown.)") + QChar::ObjectReplacementCharacter);
    }

    void a_word_that_fits_no_line_can_be_broken_and_shows_soon_data() {
        QTest::addColumn<QString>("piece");
        QTest::newRow("one look") << "aaaaaaaaaa";
        QTest::newRow("another look for every letter") << "\\b a\\b0 b";
    }
    void a_word_that_fits_no_line_can_be_broken_and_shows_soon() {
        QFETCH(QString, piece);
        const std::string word = piece.repeated(30000).toStdString();
        const double start = processorSeconds();
        Viewer viewer("{\\rtf1\\ansi before " + word + " after}");
        viewer.text().grab();
        // A thirtieth of it on a quiet machine; the square of the length took twenty seconds.
        QVERIFY(processorSeconds() - start < 10.0);
        const QString text = viewer.document().toPlainText();
        int longest = 0;
        for (const QString& part : text.split(QRegularExpression("[\\s\u200B]+")))
            longest = std::max(longest, static_cast<int>(part.size()));
        QCOMPARE(longest, 200);
    }

    void usual_words_stay_as_they_are() {
        Viewer viewer("{\\rtf1\\ansi " + std::string(200, 'a') + " " + std::string(199, 'b') + "{\\b c}}");
        QVERIFY(!viewer.document().toPlainText().contains(QChar(0x200B)));
    }

    void the_paper_is_white_on_a_dark_desktop() {
        const QPalette before = QApplication::palette();
        QPalette dark(QColor(45, 45, 48));
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
        Viewer viewer;
        const QImage picture = viewer.text().grab().toImage();
        QApplication::setPalette(before);
        QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(Qt::white));
    }

    void every_way_out_hides_it_and_none_ends_the_program_data() {
        QTest::addColumn<QString>("way");
        for (const char* const way :
             {"click", "escape in text", "enter in text", "escape in button", "close"})
            QTest::newRow(way) << way;
    }
    void every_way_out_hides_it_and_none_ends_the_program() {
        QFETCH(QString, way);
        Viewer viewer;
        if (way == "click") viewer.click(forms::kTextViewer, "Command1");
        if (way == "escape in text") QTest::keyClick(&viewer.text(), Qt::Key_Escape);
        if (way == "enter in text") QTest::keyClick(&viewer.text(), Qt::Key_Return);
        if (way == "escape in button") QTest::keyClick(&viewer.button(), Qt::Key_Escape);
        if (way == "close") viewer.screens.form(forms::kTextViewer).close();
        QCOMPARE(viewer.inFront(), std::string(forms::kMainMenu));
        QVERIFY(!viewer.screens.form(forms::kTextViewer).isVisible());
    }
};

QTEST_MAIN(ViewerTest)
#include "ViewerTest.moc"
