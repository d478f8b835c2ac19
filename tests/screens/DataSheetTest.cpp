#include <QImage>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

#include "catalogue/Subroutines.h"
#include "documents/DataSheet.h"
#include "documents/SheetRecords.h"
#include "screens/DrawingView.h"
#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/DataSheetControls.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// A decoded bearing with its data sheet on the screen.
struct Sheet : Program {
    Sheet() {
        state.unitSystem = "US";
        ApplyUnitSystem("US", state.units);
        screens.show(forms::kMainMenu);
        click(forms::kMainMenu, "Command8");
        QTest::keyClicks(&control<QWidget>(forms::kPartNumber, "Text1"), "K19013XP0");
        click(forms::kPartNumber, "Command1");
        click(forms::kMainMenu, "Command9");
    }
    std::filesystem::path file(const char* name) const { return files.path() / name; }
    /// Writes a drawing that is the bearing's by its beginning and goes on otherwise.
    void giveDrawing(const std::string& records) const {
        files.write("CONDENSED.DAT", dataSheetBeginning(state).records + records + "ALLDONE\r\n");
    }
    QWidget& picture() { return control<QWidget>(forms::kDataSheet, "Picture2"); }
    DrawingView& view() { return dynamic_cast<DrawingView&>(*picture().parentWidget()); }
    QScrollBar& bar(const char* name) { return control<QScrollBar>(forms::kDataSheet, name); }
    void drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&picture(), button, {}, from);
        QTest::mouseMove(&picture(), to);
        QTest::mouseRelease(&picture(), button, {}, to);
    }
    void turnWheel(QPoint at, int notches) {
        QWheelEvent turn(at, picture().mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&picture(), &turn);
    }
    double across() { return view().area().right - view().area().left; }
};

}  // namespace

class DataSheetTest : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kDataSheet, {kDataSheetRows, dataSheetScenes()}), QStringList());
    }

    void the_main_menu_button_leaves_the_sheet() {
        Sheet sheet;
        QCOMPARE(sheet.inFront(), std::string(forms::kDataSheet));
        sheet.click(forms::kDataSheet, "Command1");
        QCOMPARE(sheet.inFront(), std::string(forms::kMainMenu));
    }

    void the_window_takes_nine_tenths_of_a_small_screens_width() {
        Sheet sheet;
        const QWidget& window = *sheet.picture().window();
        const int whole = window.screen()->size().width();
        QVERIFY2(whole <= 1024, "the tests' screen is a small one");
        QCOMPARE(window.width(), whole * 9 / 10);
    }

    void the_page_is_painted_in_its_own_shape_on_white() {
        Sheet sheet;
        QCOMPARE(sheet.view().pixelsPerInch(), sheet.picture().width() / 8.5);
        const QImage picture = sheet.picture().grab().toImage();
        QCOMPARE(picture.pixelColor(3, 3), QColor(Qt::white));
        int dark = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                dark += picture.pixelColor(x, y).lightness() < 128 ? 1 : 0;
        }
        QVERIFY(dark > 1000);
    }

    void saving_as_rich_text_moves_the_sheet_so_that_a_second_time_there_is_none() {
        Sheet sheet;
        const std::string content = sheet.files.read("DATA.RTF");
        sheet.saveDialog.choice = SaveChoice{sheet.file("mine.rtf"), 1};
        sheet.click(forms::kDataSheet, "Command3");
        QCOMPARE(sheet.files.read("mine.rtf"), content);
        QVERIFY(!std::filesystem::exists(sheet.file("DATA.RTF")));
        QCOMPARE(sheet.state.lastSavedFile, sheet.file("mine.rtf").string());

        sheet.saveDialog.choice = SaveChoice{sheet.file("again.rtf"), 1};
        sheet.click(forms::kDataSheet, "Command3");
        QCOMPARE(sheet.lastMessage().title, std::string("Run-time error '53'"));
        const std::string& told = sheet.lastMessage().prompt;
        QVERIFY(told.starts_with("File not found"));
        QVERIFY(told.find("moved to " + sheet.file("mine.rtf").string()) != std::string::npos);
        QVERIFY(told.find("enter the part number again") != std::string::npos);
        QCOMPARE(sheet.state.lastSavedFile, sheet.file("mine.rtf").string());
    }

    void a_sheet_that_went_another_way_is_made_again_for_the_save() {
        Sheet sheet;
        const std::string content = sheet.files.read("DATA.RTF");
        std::filesystem::remove(sheet.file("DATA.RTF"));
        sheet.saveDialog.choice = SaveChoice{sheet.file("mine.rtf"), 1};
        sheet.click(forms::kDataSheet, "Command3");
        QVERIFY(sheet.messages.shown.empty());
        QCOMPARE(sheet.files.read("mine.rtf"), content);
    }

    void the_save_dialog_is_asked_as_stated() {
        Sheet sheet;
        sheet.click(forms::kDataSheet, "Command3");
        const SaveRequest& request = sheet.saveDialog.requests.at(0);
        QCOMPARE(request.title, std::string("Save Data Sheet As"));
        QCOMPARE(request.filters.at(0).label, std::string("Rich Text File(*.rtf)"));
        QCOMPARE(request.filters.at(1).label, std::string("Bitmap File(*.bmp)"));
        QCOMPARE(request.defaultExtension, std::string(".rtf"));
        QCOMPARE(request.folder, sheet.files.path());
        QCOMPARE(request.name, std::string("K19013XP0"));
    }

    void a_cancelled_save_leaves_everything() {
        Sheet sheet;
        sheet.click(forms::kDataSheet, "Command3");
        QVERIFY(sheet.messages.shown.empty());
        QVERIFY(std::filesystem::exists(sheet.file("DATA.RTF")));
        QVERIFY(sheet.state.lastSavedFile.empty());
    }

    void saving_as_bitmap_writes_the_picture_and_keeps_the_sheet() {
        Sheet sheet;
        sheet.saveDialog.choice = SaveChoice{sheet.file("mine.bmp"), 2};
        sheet.click(forms::kDataSheet, "Command3");
        const QImage picture(QString::fromStdString(sheet.file("mine.bmp").string()));
        QVERIFY(!picture.isNull());
        QCOMPARE(picture.width() * 11, picture.height() * 17 / 2);
        QVERIFY(std::filesystem::exists(sheet.file("DATA.RTF")));
        QCOMPARE(sheet.state.lastSavedFile, sheet.file("mine.bmp").string());
    }

    void a_save_that_fails_leaves_the_sheet_where_it_was() {
        Sheet sheet;
        sheet.saveDialog.choice = SaveChoice{sheet.file("no such folder") / "mine.rtf", 1};
        sheet.click(forms::kDataSheet, "Command3");
        QVERIFY(sheet.lastMessage().title.starts_with("Run-time error"));
        QVERIFY(std::filesystem::exists(sheet.file("DATA.RTF")));
    }

    void print_draws_the_sheet_on_the_page() {
        Sheet sheet;
        sheet.click(forms::kDataSheet, "Command4");
        QCOMPARE(sheet.printer.documents.size(), std::size_t{1});
        QVERIFY(sheet.printer.canvas.hasText("K19013XP0"));
        QCOMPARE(sheet.printer.documents[0], std::string("Data sheet K19013XP0"));
        QCOMPARE(sheet.printer.papers[0], papers::kLetter);
        // What is printed is what the records say, from the first to the last.
        RecordingCanvas expected;
        paintSheet(sheet.files.read("CONDENSED.DAT"), expected);
        QCOMPARE(sheet.printer.canvas.lines.size(), expected.lines.size());
        QCOMPARE(sheet.printer.canvas.texts.size(), expected.texts.size());
        QCOMPARE(sheet.printer.canvas.texts.back().text, expected.texts.back().text);
    }

    void save_and_print_first_make_the_sheet_that_of_the_bearing_in_hand_data() {
        QTest::addColumn<QString>("button");
        QTest::newRow("save as text") << "Command3";
        QTest::newRow("print") << "Command4";
    }
    void save_and_print_first_make_the_sheet_that_of_the_bearing_in_hand() {
        QFETCH(QString, button);
        Sheet sheet;
        // Something else has written into the record since, and the files are another bearing's.
        const std::string own = sheet.files.read("CONDENSED.DAT");
        sheet.state.bearing.partNumber = "K20013XP0";
        sheet.state.decoded.takeOff();
        sheet.saveDialog.choice = SaveChoice{sheet.file("mine.rtf"), 1};
        sheet.click(forms::kDataSheet, qPrintable(button));
        QVERIFY(sheet.files.read("CONDENSED.DAT") != own);
        if (button == "Command3") {
            QVERIFY(sheet.files.read("mine.rtf").find("K20013XP0") != std::string::npos);
            QCOMPARE(sheet.saveDialog.requests.at(0).name, std::string("K20013XP0"));
        } else {
            QVERIFY(sheet.printer.canvas.hasText("K20013XP0"));
            QCOMPARE(sheet.printer.documents.at(0), std::string("Data sheet K20013XP0"));
        }
    }

    void a_refused_number_leads_to_the_entry_screen_and_nothing_is_saved_or_printed() {
        for (const char* const button : {"Command3", "Command4"}) {
            Sheet sheet;
            sheet.state.bearing.partNumber = "K19013QP0";
            sheet.state.decoded.takeOff();
            sheet.click(forms::kDataSheet, button);
            QCOMPARE(sheet.inFront(), std::string(forms::kPartNumber));
            QVERIFY(sheet.saveDialog.requests.empty());
            QVERIFY(sheet.printer.documents.empty());
        }
    }

    void a_frame_becomes_the_zoom_in_the_shape_of_the_page_and_redraw_shows_it_whole() {
        Sheet sheet;
        const int width = sheet.picture().width();
        sheet.drag({width / 4, 100}, {width / 2, 110});
        const PageBox area = sheet.view().area();
        QVERIFY(std::abs((area.right - area.left) - 8.5 / 4.0) < 0.05);
        QVERIFY(std::abs((area.top - area.bottom) / (area.right - area.left) - 11.0 / 8.5) < 1e-9);
        QVERIFY(std::abs(area.left - 8.5 / 4.0) < 0.05);
        QVERIFY(std::abs(area.top - (11.0 - 100.0 * 8.5 / width)) < 0.05);
        sheet.click(forms::kDataSheet, "Command2");
        QCOMPARE(sheet.view().area().left, 0.0);
        QCOMPARE(sheet.view().area().top, 11.0);
    }

    void a_frame_never_leaves_the_page() {
        Sheet sheet;
        const int width = sheet.picture().width();
        sheet.drag({width - 60, 20}, {width + 500, 600});
        QVERIFY(sheet.view().area().right <= 8.5 + 1e-9);
        QVERIFY(sheet.view().area().bottom >= -1e-9);
    }

    void a_click_without_a_drag_changes_nothing() {
        Sheet sheet;
        sheet.drag({100, 100}, {103, 101});
        QCOMPARE(sheet.view().area().right, 8.5);
    }

    void the_rubber_frame_is_four_lines_while_dragging() {
        Sheet sheet;
        QTest::mousePress(&sheet.picture(), Qt::LeftButton, {}, {50, 50});
        QTest::mouseMove(&sheet.picture(), {250, 200});
        for (const char* const line : {"Line1", "Line2", "Line3", "Line4"})
            QVERIFY(sheet.control<QWidget>(forms::kDataSheet, line).isVisible());
        const QImage picture = sheet.picture().grab().toImage();
        const QColor red(200, 30, 30);
        for (const QPoint corner : {QPoint(51, 51), QPoint(249, 51), QPoint(51, 200), QPoint(249, 200)})
            QCOMPARE(picture.pixelColor(corner), red);
        QVERIFY(picture.pixelColor(60, 60) != red);
        QTest::mouseRelease(&sheet.picture(), Qt::LeftButton, {}, {250, 200});
        for (const char* const line : {"Line1", "Line2", "Line3", "Line4"})
            QVERIFY(!sheet.control<QWidget>(forms::kDataSheet, line).isVisible());
    }

    void the_scroll_bars_cover_the_part_of_the_page_that_does_not_fit() {
        Sheet sheet;
        const double zoom = sheet.view().pixelsPerInch();
        QCOMPARE(sheet.bar("VScroll1").maximum(), qRound(11.0 * zoom) - sheet.picture().height());
        QCOMPARE(sheet.bar("HScroll1").maximum(), 0);
        QVERIFY(sheet.bar("VScroll1").focusPolicy() & Qt::TabFocus);
        QTest::keyClick(&sheet.picture(), Qt::Key_Plus);
        QCOMPARE(sheet.view().pixelsPerInch(), zoom * 1.25);
        QCOMPARE(sheet.bar("HScroll1").maximum(), qRound(8.5 * zoom * 1.25) - sheet.picture().width());
        sheet.bar("HScroll1").setValue(sheet.bar("HScroll1").maximum());
        QVERIFY(std::abs(sheet.view().area().right - 8.5) < 0.01);
    }

    void a_sheet_starts_at_its_top_as_wide_as_the_view() {
        Sheet sheet;
        sheet.bar("VScroll1").setValue(100);
        QTest::keyClick(&sheet.picture(), Qt::Key_Plus);
        sheet.click(forms::kDataSheet, "Command2");
        QCOMPARE(sheet.bar("VScroll1").value(), 0);
        QCOMPARE(sheet.across(), 8.5);
    }

    void the_wheel_zooms_at_the_pointer() {
        Sheet sheet;
        const QPoint at(sheet.picture().width() * 2 / 3, 150);
        const PagePoint before = sheet.view().pageAt(at);
        sheet.turnWheel(at, 3);
        QVERIFY(sheet.across() < 5.0);
        const PagePoint after = sheet.view().pageAt(at);
        QVERIFY(std::abs(after.x - before.x) < 0.01);
        QVERIFY(std::abs(after.y - before.y) < 0.01);
        sheet.turnWheel(at, -30);
        QVERIFY(sheet.view().pixelsPerInch() * 11.0 <= sheet.picture().height() + 1.0);
    }

    void the_middle_button_moves_the_page() {
        Sheet sheet;
        sheet.turnWheel({300, 100}, 4);
        const PagePoint before = sheet.view().pageAt({200.0, 150.0});
        sheet.drag({200, 150}, {150, 130}, Qt::MiddleButton);
        const PagePoint after = sheet.view().pageAt({150.0, 130.0});
        QVERIFY(std::abs(after.x - before.x) < 0.01);
        QVERIFY(std::abs(after.y - before.y) < 0.01);
    }

    void with_space_the_left_button_moves_the_page_and_draws_no_frame() {
        Sheet sheet;
        sheet.turnWheel({300, 100}, 4);
        const double zoom = sheet.view().pixelsPerInch();
        const PagePoint before = sheet.view().pageAt({200.0, 150.0});
        QTest::keyPress(&sheet.picture(), Qt::Key_Space);
        sheet.drag({200, 150}, {150, 130});
        QTest::keyRelease(&sheet.picture(), Qt::Key_Space);
        QCOMPARE(sheet.view().pixelsPerInch(), zoom);
        QVERIFY(std::abs(sheet.view().pageAt({150.0, 130.0}).x - before.x) < 0.01);
        sheet.drag({100, 100}, {300, 200});
        QVERIFY(sheet.view().pixelsPerInch() > zoom);
    }

    void the_page_is_shown_whole_or_as_wide_as_the_view() {
        Sheet sheet;
        for (const char* const way : {"button", "key"}) {
            if (way == std::string("button"))
                sheet.click(forms::kDataSheet, "WholePage");
            else
                QTest::keyClick(&sheet.picture(), Qt::Key_0);
            QCOMPARE(sheet.bar("VScroll1").maximum(), 0);
            QCOMPARE(sheet.view().pixelsPerInch(), sheet.picture().height() / 11.0);
            // The page stands in the middle of its desk.
            const double left = sheet.view().pageAt({0.0, 0.0}).x;
            const double right = sheet.view().pageAt({double(sheet.picture().width()), 0.0}).x;
            QVERIFY(left < 0.0);
            QVERIFY(std::abs(left + right - 8.5) < 1e-6);
            sheet.click(forms::kDataSheet, "PageWidth");
            QCOMPARE(sheet.across(), 8.5);
            QCOMPARE(sheet.view().pixelsPerInch(), sheet.picture().width() / 8.5);
        }
        sheet.click(forms::kDataSheet, "ZoomIn");
        sheet.click(forms::kDataSheet, "ZoomOut");
        QVERIFY(std::abs(sheet.view().pixelsPerInch() - sheet.picture().width() / 8.5) < 1e-9);
    }

    void what_is_seen_is_the_part_of_the_page_that_the_bars_say() {
        Sheet sheet;
        // A thick line in a corner of an otherwise empty page.
        sheet.giveDrawing("RTFLINE\r\n7 1 8 1 255 95250\r\n");
        sheet.click(forms::kDataSheet, "Command2");
        const auto red = [&] {
            const QImage seen = sheet.picture().grab().toImage();
            const PagePoint corner = sheet.view().pageAt({0.0, 0.0});
            const double zoom = sheet.view().pixelsPerInch();
            return seen.pixelColor(qRound((7.5 - corner.x) * zoom), qRound((corner.y - 1.0) * zoom)) ==
                   QColor(Qt::red);
        };
        QTest::keyClick(&sheet.picture(), Qt::Key_End);
        QVERIFY(red());
        sheet.turnWheel({sheet.picture().width() - 80, sheet.picture().height() - 60}, 2);
        QVERIFY(red());
        sheet.click(forms::kDataSheet, "WholePage");
        QVERIFY(red());
    }

    void the_saved_bitmap_is_what_the_view_looks_at() {
        Sheet sheet;
        sheet.giveDrawing("RTFLINE\r\n0 5.5 8.5 5.5 255 95250\r\n");
        sheet.click(forms::kDataSheet, "Command2");
        const int width = sheet.picture().width();
        const double zoom = sheet.view().pixelsPerInch();
        sheet.drag({width / 4, qRound(1.0 * zoom)}, {width * 3 / 4, qRound(1.5 * zoom)});
        const PageBox area = sheet.view().area();
        sheet.saveDialog.choice = SaveChoice{sheet.file("part.bmp"), 2};
        sheet.click(forms::kDataSheet, "Command3");
        const QImage saved(QString::fromStdString(sheet.file("part.bmp").string()));
        const double dots = saved.width() / (area.right - area.left);
        QCOMPARE(saved.pixelColor(saved.width() / 2, qRound((area.top - 5.5) * dots)), QColor(Qt::red));
        QCOMPARE(saved.pixelColor(saved.width() / 2, qRound((area.top - 5.5) * dots / 2.0)),
                 QColor(Qt::white));
    }

    void redraw_shows_what_a_new_decode_has_written() {
        Sheet sheet;
        sheet.giveDrawing("");
        sheet.click(forms::kDataSheet, "Command2");
        QVERIFY(sheet.messages.shown.empty());
        const QImage picture = sheet.picture().grab().toImage();
        QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(Qt::white));
    }

    void a_record_that_nobody_can_draw_ends_the_program_data() {
        QTest::addColumn<QString>("button");
        QTest::newRow("redraw") << "Command2";
        QTest::newRow("print") << "Command4";
    }
    void a_record_that_nobody_can_draw_ends_the_program() {
        QFETCH(QString, button);
        Sheet sheet;
        sheet.files.write("CONDENSED.DAT", "NONSENSE\n1, 2, 3\nALLDONE\n");
        sheet.click(forms::kDataSheet, button.toUtf8().constData());
        QCOMPARE(sheet.inFront(), std::string());
        QVERIFY(sheet.printer.documents.empty());
    }

    void a_sheet_that_is_gone_is_made_again() {
        Sheet sheet;
        const std::string own = sheet.files.read("CONDENSED.DAT");
        sheet.click(forms::kDataSheet, "Command1");
        std::filesystem::remove(sheet.file("CONDENSED.DAT"));
        sheet.click(forms::kMainMenu, "Command9");
        QVERIFY(sheet.messages.shown.empty());
        QCOMPARE(sheet.inFront(), std::string(forms::kDataSheet));
        QCOMPARE(sheet.files.read("CONDENSED.DAT"), own);
    }

    void a_sheet_that_cannot_be_read_is_a_file_error_and_the_main_menu_stays() {
        Sheet sheet;
        sheet.click(forms::kDataSheet, "Command1");
        std::filesystem::remove(sheet.file("CONDENSED.DAT"));
        std::filesystem::create_directory(sheet.file("CONDENSED.DAT"));
        sheet.click(forms::kMainMenu, "Command9");
        QCOMPARE(sheet.lastMessage().title, std::string("Run-time error '75'"));
        QCOMPARE(sheet.inFront(), std::string(forms::kMainMenu));
    }

    void another_program_in_the_folder_does_not_get_its_sheet_onto_screen_paper_or_file_data() {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("units");
        QTest::newRow("another bearing") << "K20013XP0"
                                         << "US";
        QTest::newRow("the same with a fit") << "K19013XP0A"
                                             << "US";
        QTest::newRow("the same in other units") << "K19013XP0"
                                                 << "METRIC";
    }
    void another_program_in_the_folder_does_not_get_its_sheet_onto_screen_paper_or_file() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        Sheet mine;
        const std::string drawing = mine.files.read("CONDENSED.DAT");
        const std::string document = mine.files.read("DATA.RTF");
        Program other;
        other.folder = ProgramFolder(mine.files.path());
        other.useUnits(units.toStdString());
        const auto otherDecodes = [&] {
            other.enterNumber(number.toUtf8().constData());
            QVERIFY(mine.files.read("CONDENSED.DAT") != drawing);
            QVERIFY(mine.files.read("DATA.RTF") != document);
        };
        otherDecodes();
        mine.click(forms::kDataSheet, "Command2");
        QCOMPARE(mine.files.read("CONDENSED.DAT"), drawing);
        otherDecodes();
        mine.click(forms::kDataSheet, "Command4");
        RecordingCanvas expected;
        paintSheet(drawing, expected);
        QCOMPARE(mine.printer.canvas.texts.size(), expected.texts.size());
        for (std::size_t i = 0; i < expected.texts.size(); ++i)
            QCOMPARE(mine.printer.canvas.texts[i].text, expected.texts[i].text);
        otherDecodes();
        mine.saveDialog.choice = SaveChoice{mine.file("mine.rtf"), 1};
        mine.click(forms::kDataSheet, "Command3");
        QCOMPARE(mine.saveDialog.requests.at(0).name, std::string("K19013XP0"));
        QCOMPARE(mine.files.read("mine.rtf"), document);
        // The other one has its own as well.
        const std::string wanted = number.toStdString();
        other.click(forms::kMainMenu, "Command9");
        other.saveDialog.choice = SaveChoice{mine.file("other.rtf"), 1};
        other.click(forms::kDataSheet, "Command3");
        QVERIFY(other.messages.shown.empty() && mine.messages.shown.empty());
        QVERIFY(mine.files.read("other.rtf").starts_with(dataSheetBeginning(other.state).rtf));
        QCOMPARE(other.state.bearing.partNumber, wanted);
    }

    void a_program_that_ends_leaves_the_sheet_of_another_in_the_folder_to_it() {
        Sheet mine;
        const std::string document = mine.files.read("DATA.RTF");
        Program other;
        other.folder = ProgramFolder(mine.files.path());
        other.useUnits("US");
        other.enterNumber("K20013XP0");
        other.messages.answers = {Answer::Yes};
        other.click(forms::kMainMenu, "Command15");
        QVERIFY(!std::filesystem::exists(mine.file("DATA.RTF")));
        mine.saveDialog.choice = SaveChoice{mine.file("mine.rtf"), 1};
        mine.click(forms::kDataSheet, "Command3");
        QCOMPARE(mine.files.read("mine.rtf"), document);
        QVERIFY(mine.messages.shown.empty());
    }

    void a_sheet_that_was_moved_stays_moved_whatever_another_program_puts_in_its_place() {
        Sheet mine;
        mine.saveDialog.choice = SaveChoice{mine.file("mine.rtf"), 1};
        mine.click(forms::kDataSheet, "Command3");
        Program other;
        other.folder = ProgramFolder(mine.files.path());
        other.useUnits("US");
        other.enterNumber("K20013XP0");
        mine.saveDialog.choice = SaveChoice{mine.file("again.rtf"), 1};
        mine.click(forms::kDataSheet, "Command3");
        QCOMPARE(mine.lastMessage().title, std::string("Run-time error '53'"));
        QVERIFY(!std::filesystem::exists(mine.file("again.rtf")));
    }

    void a_picture_is_that_of_the_bearing_that_was_decoded_since() {
        Sheet sheet;
        std::string number = "K20013XP0";
        DecodeServices decode{sheet.folder, sheet.messages, sheet.clock, &sheet.sheets};
        DecodePartNumber(sheet.state, number, decode);
        sheet.saveDialog.choice = SaveChoice{sheet.file("mine.bmp"), 2};
        sheet.click(forms::kDataSheet, "Command3");
        QCOMPARE(sheet.saveDialog.requests.at(0).name, std::string("K20013XP0"));
        Sheet fresh;
        fresh.enterNumber("K20013XP0");
        fresh.click(forms::kMainMenu, "Command9");
        fresh.saveDialog.choice = SaveChoice{fresh.file("mine.bmp"), 2};
        fresh.click(forms::kDataSheet, "Command3");
        QCOMPARE(QImage(QString::fromStdString(sheet.file("mine.bmp").string())),
                 QImage(QString::fromStdString(fresh.file("mine.bmp").string())));
    }
};

QTEST_MAIN(DataSheetTest)
#include "DataSheetTest.moc"
