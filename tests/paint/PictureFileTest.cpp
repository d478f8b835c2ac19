#include <QImage>
#include <functional>
#include <string>
#include <utility>

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

TEST(PdfFiles, HaveLetterPagesAndNameTheProgram) {
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
