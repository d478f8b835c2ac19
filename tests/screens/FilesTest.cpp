#include <QImage>

#include "numbers/RuntimeError.h"
#include "paint/PictureFile.h"
#include "screens/Program.h"
#include "support/FaultOf.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

void drawCross(Canvas& canvas) {
    canvas.line({0.0, 5.5}, {8.5, 5.5}, {colours::kRed, 19050.0, 0});
    canvas.line({4.25, 0.0}, {4.25, 11.0}, {colours::kBlue, 19050.0, 0});
}

}  // namespace

class FilesTest : public QObject {
    Q_OBJECT

  private slots:
    void a_sheet_is_stored_as_two_files() {
        Program program;
        program.sheets.store({"rtf", "records"});
        QCOMPARE(program.files.read("DATA.RTF"), std::string("rtf"));
        QCOMPARE(program.files.read("CONDENSED.DAT"), std::string("records"));
    }

    void when_the_records_cannot_be_written_the_document_stays_what_it_was() {
        Program program;
        program.files.write("DATA.RTF", "old");
        std::filesystem::create_directory(program.files.path() / "CONDENSED.DAT");
        QCOMPARE(faultOf([&] { program.sheets.store({"rtf", "records"}); }), fault::kPathAccess);
        QCOMPARE(program.files.read("DATA.RTF"), std::string("old"));
    }

    void when_the_records_cannot_be_written_no_first_document_is_left() {
        Program program;
        std::filesystem::create_directory(program.files.path() / "CONDENSED.DAT");
        QCOMPARE(faultOf([&] { program.sheets.store({"rtf", "records"}); }), fault::kPathAccess);
        QVERIFY(!std::filesystem::exists(program.files.path() / "DATA.RTF"));
    }

    void a_picture_has_the_shape_and_the_places_of_the_page() {
        TemporaryFolder files;
        for (const char* const name : {"page.png", "page.BMP"}) {
            savePicture(files.path() / name, {papers::kLetter, drawCross});
            const QImage picture(QString::fromStdString((files.path() / name).string()));
            QCOMPARE(picture.width() * 11, picture.height() * 17 / 2);
            QCOMPARE(picture.pixelColor(picture.width() / 4, picture.height() / 2), QColor(Qt::red));
            QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 4), QColor(Qt::blue));
            QCOMPARE(picture.pixelColor(5, 5), QColor(Qt::white));
        }
    }

    void further_pages_stand_below_the_first() {
        TemporaryFolder files;
        const auto draw = [](Canvas& canvas) {
            canvas.newPage();
            drawCross(canvas);
        };
        savePicture(files.path() / "pages.png", {papers::kLetter, draw});
        const QImage picture(QString::fromStdString((files.path() / "pages.png").string()));
        QCOMPARE(picture.width() * 22, picture.height() * 17 / 2);
        QCOMPARE(picture.pixelColor(picture.width() / 4, picture.height() / 4), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(picture.width() / 4, picture.height() * 3 / 4), QColor(Qt::red));
    }

    void a_pdf_is_one_and_of_letter_size() {
        TemporaryFolder files;
        savePicture(files.path() / "page.pdf", {papers::kLetter, drawCross});
        const std::string content = files.read("page.pdf");
        QVERIFY(content.starts_with("%PDF"));
        QVERIFY(content.find("612") != std::string::npos && content.find("792") != std::string::npos);
    }

    void a_drawing_in_landscape_lies_across_the_page_in_every_file() {
        TemporaryFolder files;
        const auto mark = [](Canvas& canvas) {
            canvas.line({0.0, 8.0}, {11.0, 8.0}, {colours::kRed, 95250.0, 0});
        };
        const Drawing drawing{papers::kLetterLandscape, mark};
        savePicture(files.path() / "wide.png", drawing);
        const QImage picture(QString::fromStdString((files.path() / "wide.png").string()));
        QCOMPARE(picture.size(), QSize(1650, 1275));
        QCOMPARE(picture.pixelColor(1600, 75), QColor(Qt::red));
        savePicture(files.path() / "wide.pdf", drawing);
        const std::string content = files.read("wide.pdf");
        QVERIFY(content.find("[0 0 792") != std::string::npos);
    }

    void a_part_of_a_page_fills_its_bitmap_whatever_the_files_name() {
        TemporaryFolder files;
        // The right half of the cross above the middle: its left edge is the upright line.
        savePictureAs(files.path() / "part", {papers::kLetter, drawCross}, ".bmp", {4.25, 11.0, 8.5, 5.5});
        const QImage picture(QString::fromStdString((files.path() / "part").string()), "BMP");
        QCOMPARE(picture.size(), QSize(1275, 1650));
        QCOMPARE(picture.pixelColor(1, 800), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(600, 1648), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(600, 800), QColor(Qt::white));
    }

    void another_extension_is_refused_and_nothing_is_written() {
        TemporaryFolder files;
        QCOMPARE(faultOf([&] {
                     savePicture(files.path() / "page.gif", {papers::kLetter, drawCross});
                 }),
                 fault::kInvalidCall);
        QVERIFY(std::filesystem::is_empty(files.path()));
    }

    void a_drawing_that_fails_leaves_the_old_picture() {
        TemporaryFolder files;
        files.write("page.png", "old");
        QCOMPARE(faultOf([&] {
                     savePicture(files.path() / "page.png",
                                 {papers::kLetter, [](Canvas&) { raise(fault::kOverflow); }});
                 }),
                 fault::kOverflow);
        QCOMPARE(files.read("page.png"), std::string("old"));
    }

    void the_users_locale_gives_the_short_forms_of_date_and_time() {
        LocalClock clock;
        QCOMPARE(QString::fromStdString(clock.date()),
                 QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
        QVERIFY(!clock.time().empty());
    }
};

QTEST_MAIN(FilesTest)
#include "FilesTest.moc"
