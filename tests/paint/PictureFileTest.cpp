#include <QImage>
#include <QRegularExpression>
#include <QStringList>
#include <QTransform>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "numbers/RuntimeError.h"
#include "paint/PictureFile.h"
#include "support/FaultOf.h"
#include "support/Ink.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::inkBox;
using testing::TemporaryFolder;

/// Black, and 48 points wide or two thirds of an inch: no page thins it away.
constexpr PagePen kBroad{colours::kBlack, 609600.0, 0};

/// Upright letter pages with what `draw` leaves on them.
void saveLetter(const std::filesystem::path& path, std::function<void(Canvas&)> draw) {
    savePicture(path, {papers::kLetter, std::move(draw)});
}

QImage load(const std::filesystem::path& path) {
    return QImage(QString::fromStdString(path.string()));
}

/// Where ink is, in pixels of 150 to the inch, to two pixels.
void expectInk(const QImage& picture, const QRect& part, int left, int top, int right, int bottom) {
    const QRect ink = inkBox(picture, part);
    EXPECT_NEAR(ink.left(), left, 2);
    EXPECT_NEAR(ink.top(), top, 2);
    EXPECT_NEAR(ink.right(), right, 2);
    EXPECT_NEAR(ink.bottom(), bottom, 2);
}

int countOf(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST(PictureFiles, AreLetterPagesAtAHundredAndFiftyDotsToTheInch) {
    const TemporaryFolder files;
    for (const char* const name : {"sheet.png", "sheet.bmp", "SHEET2.PNG", "sheet3.Bmp"}) {
        const auto path = files.path() / name;
        saveLetter(path, [](Canvas& canvas) {
            canvas.rectangle({1.0, 10.0, 3.0, 9.0}, colours::kBlue, std::nullopt);
        });
        const QImage picture = load(path);
        EXPECT_EQ(picture.size(), QSize(1275, 1650)) << name;
        EXPECT_NEAR(picture.dotsPerMeterX(), 5906, 1) << "150 / 0.0254";
        EXPECT_NEAR(picture.dotsPerMeterY(), 5906, 1);
        expectInk(picture, picture.rect(), 150, 150, 449, 299);
        EXPECT_EQ(picture.pixelColor(300, 200), QColor(0, 0, 255));
        EXPECT_EQ(picture.pixelColor(1000, 1000), QColor(255, 255, 255)) << "paper is white";
    }
}

TEST(PictureFiles, HaveTheirKindByTheirExtension) {
    const TemporaryFolder files;
    for (const auto& [name, start] : {std::pair{"a.png", "\x89PNG"}, std::pair{"a.bmp", "BM"},
                                      std::pair{"a.pdf", "%PDF-"}, std::pair{"a.PDF", "%PDF-"}}) {
        saveLetter(files.path() / name, [](Canvas&) {});
        EXPECT_TRUE(files.read(name).starts_with(start)) << name;
    }
    for (const char* const name : {"a.png", "a.PNG", "a.bmp", "a.pdf", "x.y.Pdf"}) {
        EXPECT_TRUE(isPictureFile(name)) << name;
    }
    for (const char* const name : {"a.rtf", "a", "png", "a.png.rtf"}) {
        EXPECT_FALSE(isPictureFile(name)) << name;
    }
}

TEST(PictureFiles, SetFurtherPagesBelowTheFirst) {
    const TemporaryFolder files;
    const auto path = files.path() / "pages.png";
    saveLetter(path, [](Canvas& canvas) {
        canvas.rectangle({1.0, 10.0, 2.0, 9.0}, colours::kBlack, std::nullopt);
        canvas.newPage();
        canvas.rectangle({3.0, 8.0, 4.0, 7.0}, colours::kBlack, std::nullopt);
        canvas.newPage();
        canvas.rectangle({5.0, 6.0, 6.0, 5.0}, colours::kBlack, std::nullopt);
    });
    const QImage picture = load(path);
    EXPECT_EQ(picture.size(), QSize(1275, 3 * 1650));
    expectInk(picture, QRect(0, 0, 1275, 1650), 150, 150, 299, 299);
    expectInk(picture, QRect(0, 1650, 1275, 1650), 450, 1650 + 450, 599, 1650 + 599);
    expectInk(picture, QRect(0, 3300, 1275, 1650), 750, 3300 + 750, 899, 3300 + 899);
}

TEST(PdfFiles, HaveAPageForEachOfTheDrawing) {
    const TemporaryFolder files;
    saveLetter(files.path() / "a.pdf", [](Canvas& canvas) {
        canvas.line({1.0, 10.0}, {3.0, 9.0}, kBroad);
        canvas.newPage();
        canvas.newPage();
    });
    const std::string pdf = files.read("a.pdf");
    // 8.5 and 11 inches in points.
    EXPECT_EQ(countOf(pdf, "/MediaBox [0 0 612"), 3) << pdf.substr(0, 2000);
    EXPECT_EQ(countOf(pdf, "792"), 3);
    EXPECT_EQ(countOf(pdf, "/Count 3"), 1);
}

/// A text as a PDF file holds it: two bytes a letter, behind a mark.
std::string wide(const std::string& text) {
    std::string bytes = "\xFE\xFF";
    for (const char letter : text)
        bytes += std::string(1, '\0') + letter;
    return bytes;
}

TEST(PdfFiles, NameTheProgram) {
    const TemporaryFolder files;
    saveLetter(files.path() / "a.pdf", [](Canvas&) {});
    EXPECT_EQ(countOf(files.read("a.pdf"), "/Creator (" + wide("NORLAPLAN-MM version 1.00") + ")"), 1);
}

TEST(PdfFiles, LieOnTheirSideWhereThePaperDoes) {
    const TemporaryFolder files;
    savePicture(files.path() / "a.pdf", {papers::kLetterLandscape, [](Canvas&) {}});
    const std::string pdf = files.read("a.pdf");
    EXPECT_EQ(countOf(pdf, "/MediaBox [0 0 792"), 1);
    EXPECT_EQ(countOf(pdf, " 612"), 1);
}

/// The drawing of a PDF file's only page, unpacked.
QStringList operatorsOf(const std::string& pdf) {
    for (std::size_t at = pdf.find("\nstream\n"); at != std::string::npos;
         at = pdf.find("\nstream\n", at + 1)) {
        const QByteArray packed(pdf.data() + at + 8, static_cast<qsizetype>(pdf.size() - at - 8));
        // The toolkit wants the size of what comes out in front, and grows it where it is more.
        const QByteArray page = qUncompress(QByteArray("\0\0\x10\0", 4) + packed);
        if (page.contains(" cm")) return QString::fromLatin1(page).split(QRegularExpression("\\s+"));
    }
    return {};
}

/// The ends of a drawing's lines, in points from the lower left corner of the page.
std::vector<QPointF> endsOfLines(const QStringList& operators) {
    std::vector<QPointF> ends;
    std::vector<QTransform> kept;
    QTransform scale;
    for (qsizetype i = 0; i < operators.size(); ++i) {
        const auto number = [&](qsizetype back) { return operators.at(i - back).toDouble(); };
        const QString& word = operators.at(i);
        if (word == "q") kept.push_back(scale);
        if (word == "Q") {
            scale = kept.back();
            kept.pop_back();
        }
        if (word == "cm")
            scale = QTransform(number(6), number(5), number(4), number(3), number(2), number(1)) * scale;
        if (word == "m" || word == "l") ends.push_back(scale.map(QPointF(number(2), number(1))));
    }
    return ends;
}

TEST(PdfFiles, HaveTheirLinesWhereTheyStandOnThePaper) {
    const TemporaryFolder files;
    for (const Paper& paper : {papers::kLetter, papers::kLetterLandscape}) {
        savePicture(files.path() / "a.pdf", {paper, [](Canvas& canvas) {
                                                 canvas.line({1.0, 7.0}, {3.5, 6.0}, kBroad);
                                             }});
        const std::vector<QPointF> ends = endsOfLines(operatorsOf(files.read("a.pdf")));
        ASSERT_EQ(ends.size(), 2U);
        // 72 points to the inch.
        EXPECT_NEAR(ends[0].x(), 72.0, 0.1);
        EXPECT_NEAR(ends[0].y(), 504.0, 0.1);
        EXPECT_NEAR(ends[1].x(), 252.0, 0.1);
        EXPECT_NEAR(ends[1].y(), 432.0, 0.1);
    }
}

TEST(PictureFiles, OfAnotherExtensionAreFaultFiveAndNoFile) {
    const TemporaryFolder files;
    bool called = false;
    EXPECT_EQ(faultOf([&] { saveLetter(files.path() / "a.jpg", [&](Canvas&) { called = true; }); }),
              fault::kInvalidCall);
    EXPECT_FALSE(called);
    EXPECT_FALSE(std::filesystem::exists(files.path() / "a.jpg"));
}

TEST(PictureFiles, ThatFailLeaveWhatStoodThere) {
    const TemporaryFolder files;
    for (const char* const name : {"a.png", "a.pdf", "a.bmp"}) {
        files.write(name, "old");
        EXPECT_EQ(faultOf([&] { saveLetter(files.path() / name, [](Canvas&) { raise(fault::kOverflow); }); }),
                  fault::kOverflow);
        EXPECT_EQ(files.read(name), "old");
    }
    EXPECT_EQ(faultOf([&] { saveLetter(files.path() / "missing" / "a.png", [](Canvas&) {}); }),
              fault::kPathAccess);
}

TEST(PictureFiles, WiderThanAnyImageAreADeviceFaultAndNoFile) {
    const TemporaryFolder files;
    // A row of half a thousand million pixels takes more bytes than an image counts.
    const Drawing drawing{{3.7e6, 1.0}, [](Canvas&) {}};
    EXPECT_EQ(faultOf([&] { savePicture(files.path() / "a.png", drawing); }), fault::kDeviceIo);
    EXPECT_FALSE(std::filesystem::exists(files.path() / "a.png"));
}

TEST(Bitmaps, ShowTheirPartOfThePageAsLargeAsAWholeOne) {
    const TemporaryFolder files;
    const auto path = files.path() / "part.dat";
    // A quarter of the page, from x = 2 on, its top at y = 9: everything appears four times as large.
    const auto draw = [](Canvas& canvas) {
        canvas.rectangle({2.5, 8.5, 3.0, 8.25}, colours::kBlack, std::nullopt);
        canvas.rectangle({0.5, 8.5, 1.0, 8.25}, colours::kBlack, std::nullopt);
    };
    savePictureAs(path, {papers::kLetter, draw}, ".bmp", {2.0, 9.0, 2.0 + 8.5 / 4.0, 9.0 - 11.0 / 4.0});
    EXPECT_TRUE(files.read("part.dat").starts_with("BM"));
    const QImage picture = load(path);
    EXPECT_EQ(picture.size(), QSize(1275, 1650));
    expectInk(picture, picture.rect(), 300, 300, 599, 449);
}

}  // namespace
}  // namespace norlaplan
