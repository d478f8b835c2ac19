#include <QImage>
#include <QScrollBar>

#include "screens/Program.h"
#include "screens/SheetView.h"

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
    SheetView& view() { return dynamic_cast<SheetView&>(control<QWidget>(forms::kDataSheet, "Picture2")); }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&view(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&view(), to);
        QTest::mouseRelease(&view(), Qt::LeftButton, {}, to);
    }
};

}  // namespace

class DataSheetTest : public QObject {
    Q_OBJECT

  private slots:
    void the_sheet_opens_with_its_captions_and_tips() {
        Sheet sheet;
        QCOMPARE(sheet.inFront(), std::string(forms::kDataSheet));
        QCOMPARE(sheet.screens.form(forms::kDataSheet).windowTitle(), QString("Drawing Display"));
        const auto is = [&](const char* name, const char* caption, const char* tip) {
            sheet.compareButton(forms::kDataSheet, name, caption, tip);
        };
        is("Command1", "&Main Menu", "Return to Main Menu");
        is("Command2", "Redraw", "");
        is("Command3", "&Save", "Save data sheet to file");
        is("Command4", "P&rint", "Print data sheet");
        sheet.click(forms::kDataSheet, "Command1");
        QCOMPARE(sheet.inFront(), std::string(forms::kMainMenu));
    }

    void the_page_is_painted_in_its_own_shape_on_white() {
        Sheet sheet;
        QCOMPARE(sheet.view().pageHeight(), qRound(sheet.view().width() * 11.0 / 8.5));
        const QImage picture = sheet.view().grab().toImage();
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
        QCOMPARE(sheet.state.lastSavedFile, sheet.file("mine.rtf").string());
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
        QVERIFY(!sheet.printer.canvas.lines.empty());
    }

    void a_frame_becomes_the_zoom_in_the_shape_of_the_page_and_redraw_shows_it_whole() {
        Sheet sheet;
        const int width = sheet.view().width();
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
        sheet.drag({sheet.view().width() - 60, 20}, {sheet.view().width() + 500, 600});
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
        QTest::mousePress(&sheet.view(), Qt::LeftButton, {}, {50, 50});
        QTest::mouseMove(&sheet.view(), {250, 200});
        for (const char* const line : {"Line1", "Line2", "Line3", "Line4"})
            QVERIFY(sheet.control<QWidget>(forms::kDataSheet, line).isVisible());
        QTest::mouseRelease(&sheet.view(), Qt::LeftButton, {}, {250, 200});
        for (const char* const line : {"Line1", "Line2", "Line3", "Line4"})
            QVERIFY(!sheet.control<QWidget>(forms::kDataSheet, line).isVisible());
    }

    void the_scroll_bar_covers_the_part_of_the_page_that_does_not_fit() {
        Sheet sheet;
        auto& bar = sheet.control<QScrollBar>(forms::kDataSheet, "VScroll1");
        QCOMPARE(bar.maximum(), std::max(0, sheet.view().pageHeight() - sheet.view().height()));
        QVERIFY(bar.focusPolicy() & Qt::TabFocus);
    }

    void redraw_shows_what_a_new_decode_has_written() {
        Sheet sheet;
        sheet.files.write("CONDENSED.DAT", "ALLDONE\n");
        sheet.click(forms::kDataSheet, "Command2");
        QVERIFY(sheet.messages.shown.empty());
        const QImage picture = sheet.view().grab().toImage();
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

    void a_sheet_that_is_gone_is_a_file_error_and_the_main_menu_stays() {
        Sheet sheet;
        sheet.click(forms::kDataSheet, "Command1");
        std::filesystem::remove(sheet.file("CONDENSED.DAT"));
        sheet.click(forms::kMainMenu, "Command9");
        QCOMPARE(sheet.lastMessage().title, std::string("Run-time error '53'"));
        QCOMPARE(sheet.inFront(), std::string(forms::kMainMenu));
    }
};

QTEST_MAIN(DataSheetTest)
#include "DataSheetTest.moc"
