#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <map>

#include "documents/DataSheet.h"
#include "documents/RTFroutines.h"
#include "screens/Program.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

QImage imageOf(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// How much of a picture has that colour, 0 to 1.
double share(const QImage& picture, QRgb colour) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixel(x, y) == colour ? 1 : 0;
    }
    return static_cast<double>(count) / (picture.width() * picture.height());
}

/// The smallest rectangle around all pixels of that colour.
QRect placeOf(const QImage& picture, QRgb colour) {
    QRect place;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == colour) place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

/// What of a view takes the mouse and shows the drawing.
QWidget& surfaceOf(QWidget& view) {
    auto* const viewport = view.findChild<QWidget*>("qt_scrollarea_viewport");
    return viewport == nullptr ? view : *viewport;
}

/// Puts pictures of one colour each in the place of the program's own.
std::map<std::string, QColor> usePlainPictures(Program& program) {
    std::map<std::string, QColor> colours;
    const std::filesystem::path folder = program.files.path() / "bkground";
    std::filesystem::remove(folder);
    std::filesystem::create_directory(folder);
    int hue = 0;
    for (const char* const stem : {"DB", "X", "DF", "DBWS", "C", "DFWS"}) {
        for (const std::string& name :
             {"T-" + std::string(stem), std::string(stem) + "-L", std::string(stem) + "-S"}) {
            const QColor colour = QColor::fromHsv(hue, 255, 200);
            hue += 20;
            QImage picture(240, 160, QImage::Format_RGB32);
            picture.fill(colour);
            picture.save(QString::fromStdString((folder / (name + ".BMP")).string()), "BMP");
            colours[name] = colour;
        }
    }
    return colours;
}

}  // namespace

/// The forms as the eye and the ear have them, however they are built.
class WhatIsSeenTest : public QObject {
    Q_OBJECT

  private slots:
    void each_style_shows_its_own_picture() {
        Program program;
        const auto colours = usePlainPictures(program);
        const char* const stems[] = {"DB", "X", "DF", "DBWS", "C", "DFWS"};
        for (int i = 0; i < 6; ++i) {
            const std::string name = "Image" + std::to_string(i + 1);
            auto& choice = program.control<QWidget>("Form16", name.c_str());
            choice.resize(260, 200);
            const QRgb wanted = colours.at("T-" + std::string(stems[i])).rgb();
            QVERIFY2(share(imageOf(choice), wanted) > 0.3, name.c_str());
        }
    }

    void the_load_screen_shows_the_loads_on_the_bearings_own_style() {
        for (const auto& [number, stem] : {std::pair{"K19013XP0", "X"}, std::pair{"K19013CP0", "C"}}) {
            Program program;
            const auto colours = usePlainPictures(program);
            program.enterNumber(number);
            program.click("Form3", "Command13");
            QCOMPARE(program.inFront(), std::string("Form14"));
            const QImage seen = imageOf(program.control<QWidget>("Form14", "Picture1"));
            QVERIFY(share(seen, colours.at(std::string(stem) + "-L").rgb()) > 0.3);
        }
    }

    void what_a_tip_says_is_spoken_too() {
        Program program;
        int tips = 0;
        for (const char* const form : {"Form3", "Form6", "Form9", "Form12", "Form14", "Form16", "Form17"}) {
            for (const auto* const control : program.screens.form(form).findChildren<QAbstractButton*>()) {
                if (control->toolTip().isEmpty()) continue;
                ++tips;
                QVERIFY2(control->accessibleDescription() == control->toolTip(),
                         qPrintable(QString(form) + " " + control->objectName()));
            }
        }
        QVERIFY(tips > 20);
    }

    void a_frame_drawn_inside_a_red_box_shows_the_inside_of_that_box() {
        Program program;
        program.enterNumber("K19013XP0");
        program.click("Form3", "Command9");
        RtfDocument drawing;
        SheetText text;
        text.box = {5.0, 10.5, 7.5, 8.0};
        drawing.RTFTEXTWBOX({text, colours::kRed});
        drawing.endRecords();
        program.files.write("CONDENSED.DAT", dataSheetBeginning(program.state).records + drawing.records());
        program.click("Form17", "Command2");

        QWidget& view = surfaceOf(program.control<QWidget>("Form17", "Picture2"));
        const QRgb red = qRgb(255, 0, 0);
        const QImage before = imageOf(view);
        const QRect box = placeOf(before, red);
        QVERIFY(box.width() > 60);
        QVERIFY(share(before, red) < 0.3);
        const QPoint from = box.topLeft() + QPoint(box.width() / 5, box.height() / 5);
        const QPoint to = from + QPoint(box.width() / 2, box.width() / 2);
        QTest::mousePress(&view, Qt::LeftButton, {}, from);
        QTest::mouseMove(&view, to);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
        QVERIFY(share(imageOf(view), red) > 0.6);
    }

    void a_sheet_is_printed_into_a_pdf_without_a_fault() {
        PresetSaveDialog saveDialog;
        RecordingDesktop desktop;
        QtPrinter printer(saveDialog, desktop);
        Program program(&printer);
        program.enterNumber("K19013XP0");
        program.click("Form3", "Command9");
        saveDialog.choice = SaveChoice{program.files.path() / "print.pdf", 1};
        bool asked = false;
        QTimer::singleShot(200, qApp, [&] {
            auto* const preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (preview == nullptr) return;
            asked = true;
            preview->findChild<QPushButton*>("SaveAsPdf")->click();
            preview->reject();
        });
        program.click("Form17", "Command4");
        QVERIFY(asked);
        QVERIFY2(program.messages.shown.empty(), program.lastMessage().prompt.c_str());
        const std::string pdf = program.files.read("print.pdf");
        QVERIFY(pdf.starts_with("%PDF"));
        QVERIFY(pdf.find("/Count 1") != std::string::npos);
        QVERIFY2(pdf.size() > 5000, "more than an empty page");
    }
};

QTEST_MAIN(WhatIsSeenTest)
#include "WhatIsSeenTest.moc"
