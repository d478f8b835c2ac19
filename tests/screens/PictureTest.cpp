#include <QImage>
#include <QtTest>
#include <fstream>

#include "paint/BearingIcon.h"
#include "screens/Picture.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {
namespace {

constexpr QRgb kRed = qRgb(200, 0, 0);
constexpr QRgb kBlue = qRgb(0, 0, 200);

/// A folder with pictures of one colour each.
class Pictures {
  public:
    Pictures() { std::filesystem::create_directory(folder_.path() / "bkground"); }

    void put(const char* name, QSize size, QRgb colour, const char* format) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        QVERIFY(picture.save(QString::fromStdString((folder_.path() / "bkground" / name).string()), format));
    }

    /// The colour in the middle of "\bkground\a.ppm" when it is shown with this size.
    QRgb shown(QSize size) const {
        Picture picture("Image1", "A picture", {40, 40});
        picture.showFile(ProgramFolder(folder_.path()), "\\bkground\\a.ppm");
        return middleOf(picture, size);
    }

    static QRgb middleOf(Picture& picture, QSize size) {
        picture.resize(size);
        return picture.grab().toImage().pixel(size.width() / 2, size.height() / 2);
    }

    ProgramFolder folder() const { return ProgramFolder(folder_.path()); }

  private:
    TemporaryFolder folder_;
};

}  // namespace

class PictureTest : public QObject {
    Q_OBJECT

  private slots:
    void where_the_room_is_not_the_pictures_own_size_the_finer_one_is_shown() {
        const Pictures pictures;
        pictures.put("a.ppm", {100, 60}, kRed, "PPM");
        pictures.put("a-2x.ppm", {200, 120}, kBlue, "PPM");
        QCOMPARE(pictures.shown({100, 60}), kRed);
        QCOMPARE(pictures.shown({130, 60}), kRed);
        QCOMPARE(pictures.shown({60, 60}), kBlue);
        QCOMPARE(pictures.shown({101, 61}), kBlue);
        QCOMPARE(pictures.shown({400, 300}), kBlue);
    }

    void a_picture_that_was_shown_large_goes_back_to_its_own_size() {
        const Pictures pictures;
        pictures.put("a.ppm", {100, 60}, kRed, "PPM");
        pictures.put("a-2x.ppm", {200, 120}, kBlue, "PPM");
        Picture picture("Image1", "A picture", {40, 40});
        picture.showFile(pictures.folder(), "\\bkground\\a.ppm");
        QCOMPARE(Pictures::middleOf(picture, {200, 120}), kBlue);
        QCOMPARE(Pictures::middleOf(picture, {100, 60}), kBlue);
    }

    void without_a_finer_picture_the_one_there_is_fills_the_room() {
        const Pictures pictures;
        pictures.put("a.ppm", {100, 60}, kRed, "PPM");
        QTest::failOnWarning(QRegularExpression(".*"));
        QCOMPARE(pictures.shown({400, 240}), kRed);
    }

    void a_damaged_finer_picture_leaves_the_one_there_is() {
        const Pictures pictures;
        pictures.put("a.ppm", {100, 60}, kRed, "PPM");
        std::ofstream(pictures.folder().find("\\bkground") / "a-2x.ppm") << "P6 200 120 255 cut short";
        QCOMPARE(pictures.shown({400, 240}), kRed);
    }

    void a_file_with_another_formats_ending_is_read_as_what_it_holds() {
        for (const char* const format : {"PNG", "BMP", "JPG"}) {
            const Pictures pictures;
            pictures.put("a.ppm", {100, 60}, qRgb(255, 0, 0), format);
            QVERIFY2(qRed(pictures.shown({100, 60})) > 250, format);
            QVERIFY2(qBlue(pictures.shown({100, 60})) < 5, format);
        }
    }

    void the_programs_icon_has_each_of_its_sizes_as_drawn() {
        const QIcon icon = bearingIcon();
        QCOMPARE(icon.availableSizes().size(), static_cast<qsizetype>(std::size(kIconSizes)));
        for (const int pixels : kIconSizes) {
            QVERIFY(icon.availableSizes().contains(QSize(pixels, pixels)));
            const QImage shown = icon.pixmap(QSize(pixels, pixels), 1.0).toImage();
            QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32),
                     bearingIconImage(pixels).convertToFormat(QImage::Format_ARGB32));
        }
    }

    void the_programs_icon_in_a_size_between_is_the_next_larger_one_made_smaller() {
        const QIcon icon = bearingIcon();
        QCOMPARE(icon.actualSize(QSize(40, 40)), QSize(40, 40));
        QCOMPARE(icon.pixmap(QSize(40, 40), 1.0).size(), QSize(40, 40));
        QCOMPARE(icon.pixmap(QSize(300, 300), 1.0).size(), QSize(256, 256));
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::PictureTest)
#include "PictureTest.moc"
