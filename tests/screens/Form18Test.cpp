#include <QEvent>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <cstdio>
#include <set>

#include "screens/GraphScreen.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/FitsControls.h"
#include "support/DiskTroubles.h"
#include "support/PlainPlay.h"

namespace norlaplan::testing {
namespace {

struct PlayScreen : GraphScreen {
    explicit PlayScreen(const char* units = "US") : GraphScreen("Form18", "Command11") { useUnits(units); }

    bool metric() const { return state.unitSystem == "METRIC"; }
    PlainPlay plain() const { return plainPlay(state.bearing, metric() ? 25.4F : 1.0F); }
    QWidget& frame(const char* name) { return control<QWidget>("Form18", name); }
    QTimer& timer() { return control<QTimer>("Form18", "Timer1"); }
};

/// Notes which of the thirteen images come into view, in turn.
class Watcher : public QObject {
  public:
    explicit Watcher(PlayScreen& screen) {
        for (int i = 1; i <= 13; ++i) {
            images_.push_back(&screen.frame(("Image" + std::to_string(i)).c_str()));
            images_.back()->installEventFilter(this);
        }
    }
    std::vector<int> shown;
    std::size_t mostAtOnce = 0;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            for (std::size_t i = 0; i < images_.size(); ++i) {
                if (images_[i] == watched) shown.push_back(static_cast<int>(i) + 1);
            }
            const auto visible = std::count_if(images_.begin(), images_.end(),
                                               [](const QWidget* image) { return !image->isHidden(); });
            mostAtOnce = std::max(mostAtOnce, static_cast<std::size_t>(visible));
        }
        return false;
    }

  private:
    std::vector<QWidget*> images_;
};

const std::vector<int> kOnce = {1,  2,  3,  4, 5,  6,  7,  8, 9, 8, 7, 6, 5,
                                12, 13, 12, 5, 11, 10, 11, 5, 4, 3, 2, 1};

/// The axial play screen by the controls that a user works with.
class Form18Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kAxialPlay, {kFitsRows, fitsScenes()}), QStringList());
    }

    void itOpensForRadialAndFourPointContact_data() {
        QTest::addColumn<QString>("units");
        QTest::newRow("US") << "US";
        QTest::newRow("metric") << "METRIC";
    }
    void itOpensForRadialAndFourPointContact() {
        QFETCH(QString, units);
        PlayScreen screen(qPrintable(units));
        for (const std::string& number : numbersOf({"X", "C"})) {
            screen.openFor(number);
            QVERIFY2(screen.messages.shown.empty(), (number + ": " + screen.lastMessage().prompt).c_str());
            QCOMPARE(screen.inFront(), std::string("Form18"));
            QCOMPARE(screen.state.play.partNumber, number);
            QVERIFY2(screen.pixelsOfHue(0) > 100, number.c_str());
            QVERIFY2(screen.pixelsOf(qRgb(224, 224, 224)) > 200, number.c_str());
        }
    }

    void forOtherStylesTheMenuSaysWhyItStaysShut() {
        for (const char* const number :
             {"K19013FP0R", "K19013BP0R", "K19013AP0", "K19013UP0", "K19013TP0A"}) {
            PlayScreen screen;
            screen.openFor(number);
            QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
            QCOMPARE(screen.lastMessage(),
                     (Message{"Wrong Bearing style", "Only radial and 4-point contact bearings allowed",
                              Icon::Critical}));
        }
    }

    void captionsAndTipsAreTheStatedOnes() {
        PlayScreen screen;
        QCOMPARE(screen.screens.form("Form18").windowTitle(), QString("Axial Clearance"));
        screen.compareButton("Form18", "Option1", "Axial Movement", "Switch to Axial Movement");
        screen.compareButton("Form18", "Option2", "Tilt of Axis", "Switch to Tilt of Axis");
        screen.compareButton("Form18", "Command3",
                             "CLICK HERE                                     to see visual demonstration of  "
                             "                   Axial Play vs. Diametral Clearance",
                             "View Demonstration");
        screen.compareButton("Form18", "Command2", "Save", "Save Results to file");
        screen.compareButton("Form18", "Command4", "P&rint", "Print results of calculations");
        screen.compareButton("Form18", "Command1", "&Main Menu", "Return to Main Menu");
        QCOMPARE(screen.control<QGroupBox>("Form18", "Frame1").title(), QString("Comments"));
    }

    void theOptionsSwitchBetweenTheTwoPictures() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        QVERIFY(screen.control<QRadioButton>("Form18", "Option1").isChecked());
        QVERIFY(screen.picture("Picture1").isVisible() && !screen.picture("Picture2").isVisible());
        screen.press("Option2");
        QVERIFY(!screen.picture("Picture1").isVisible() && screen.picture("Picture2").isVisible());
        QCOMPARE(screen.picture("Picture2").geometry(), screen.picture("Picture1").geometry());
        screen.press("Option1");
        QVERIFY(screen.picture("Picture1").isVisible() && !screen.picture("Picture2").isVisible());
        // Opened again it begins with the axial play and without comments.
        screen.press("Option2");
        screen.press("Command6");
        screen.press("Command1");
        screen.openFor("K19013XP0");
        QVERIFY(screen.control<QRadioButton>("Form18", "Option1").isChecked());
        QVERIFY(screen.picture("Picture1").isVisible() && !screen.picture("Picture2").isVisible());
        QVERIFY(!screen.frame("Frame1").isVisible());
    }

    void theCommentsComeAndGoWithTheirButton() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        const auto& button = screen.control<QPushButton>("Form18", "Command6");
        QCOMPARE(button.text(), QString("Show Comments"));
        screen.press("Command6");
        QVERIFY(screen.frame("Frame1").isVisible());
        QCOMPARE(button.text(), QString("Hide Comments"));
        QCOMPARE(
            screen.label("Label2").text(),
            QString("The internal clearance shown above is the total diametral clearance.  It is the sum "
                    "of the radial clearance contained on both sides of the bearing.  The 'OFFSET' values "
                    "shown in the animation are equal to 1/2 of the 'AXIAL PLAY' values shown above.  The "
                    "clearance in the bearing is assumed to be equally distributed around the bearing so "
                    "that the races can translate along the rotational axis evenly."));
        QCOMPARE(
            screen.label("Label3").text(),
            QString("The values shown above are for Engineering Reference only!  If specific target values "
                    "for axial play or tilt of axis are required, Varden's Engineering department must be "
                    "consulted."));
        screen.press("Command6");
        QVERIFY(!screen.frame("Frame1").isVisible());
        QCOMPARE(button.text(), QString("Show Comments"));
    }

    void theReadoutFollowsThePointerAcrossBothPictures_data() {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("units");
        for (const char* const units : {"US", "METRIC"}) {
            for (const char* const number : {"K19013XP0", "K19013CP0E"})
                QTest::newRow(qPrintable(QString("%1 %2").arg(number, units))) << number << units;
        }
    }
    void theReadoutFollowsThePointerAcrossBothPictures() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        PlayScreen screen(qPrintable(units));
        screen.openFor(number.toStdString());
        const PlainPlay plain = screen.plain();
        const auto compare = [&](const char* picture, float PlainPlay::Row::*value, double scale,
                                 const char* format) {
            for (const PlainPlay::Row& row : plain.rows) {
                const double x = 0.75 + row.clearance * plain.sx;
                const double y = 0.5 + row.*value * scale;
                char text[60];
                std::snprintf(text, sizeof text, format, static_cast<double>(row.clearance),
                              static_cast<double>(row.*value));
                QCOMPARE(screen.readoutAt(x, y, picture), QString(text));
            }
        };
        compare("Picture1", &PlainPlay::Row::play, plain.sy, "%.4f , %.4f");
        screen.press("Option2");
        QVERIFY(!screen.label("Label1").isVisible());
        compare("Picture2", &PlainPlay::Row::tilt, plain.sTilt, "%.4f , %.5f");
        QCOMPARE(screen.readoutAt(7.5, 1.0, "Picture2"), QString());
    }

    void theRangeIsNamedByTheLetter() {
        for (const auto& [number, caption] : {std::pair{"K19013XP0", "STANDARD CLEARANCE RANGE IN GREY"},
                                              {"K19013XP0R", "STANDARD CLEARANCE RANGE IN GREY"},
                                              {"K19013XP0Z", "STANDARD CLEARANCE RANGE IN GREY"},
                                              {"K19013XP0E", "\"E\" CLEARANCE RANGE IN GREY"}}) {
            PlayScreen screen;
            screen.openFor(number);
            screen.press("Command4");
            QVERIFY2(screen.printed(caption), number);
        }
    }

    void theDemonstrationShowsThirteenPicturesOfOneSize() {
        const std::filesystem::path folder = programFolder() / "bkground";
        std::set<QByteArray> all;
        for (int i = 1; i <= 13; ++i) {
            const QImage image(
                QString::fromStdString((folder / ("C" + std::to_string(i) + ".BMP")).string()));
            QVERIFY2(!image.isNull(), std::to_string(i).c_str());
            QCOMPARE(image.size(), QSize(960, 800));
            all.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
        }
        QCOMPARE(all.size(), std::size_t{13});
    }

    void itPlaysThemThreeTimesInTheStatedOrder() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        // A tenth of a second each.
        QCOMPARE(screen.timer().interval(), 100);
        screen.timer().setInterval(0);
        Watcher watcher(screen);
        QVERIFY(!screen.frame("Frame3").isVisible());
        screen.press("Command3");
        QVERIFY(screen.frame("Frame3").isVisible());
        QTRY_VERIFY(!screen.frame("Frame3").isVisible());
        std::vector<int> stated;
        for (int i = 0; i < 3; ++i)
            stated.insert(stated.end(), kOnce.begin(), kOnce.end());
        QCOMPARE(watcher.shown, stated);
        QCOMPARE(watcher.mostAtOnce, std::size_t{1});
        // And again from the first.
        watcher.shown.clear();
        screen.press("Command3");
        QTRY_VERIFY(!screen.frame("Frame3").isVisible());
        QCOMPARE(watcher.shown, stated);
    }

    void aPictureStretchesOverItsFrame() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        screen.timer().setInterval(1000000);
        screen.press("Command3");
        QCoreApplication::processEvents();
        const QWidget& frame = screen.frame("Frame3");
        const QWidget& image = screen.frame("Image1");
        QVERIFY(image.isVisible());
        QVERIFY(frame.width() - image.width() <= 12 && frame.height() - image.height() <= 12);
        // The frame comes and goes without moving what stands around it.
        const QRect picture = screen.picture().geometry();
        screen.press("Command1");
        screen.openFor("K19013XP0");
        QVERIFY(!screen.frame("Frame3").isVisible());
        QCOMPARE(screen.picture().geometry(), picture);
    }

    void theOtherButtonsStayAliveWhileItPlays() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        screen.timer().setInterval(1000000);
        screen.press("Command3");
        screen.press("Option2");
        QVERIFY(screen.picture("Picture2").isVisible());
        screen.press("Command6");
        QVERIFY(screen.frame("Frame1").isVisible());
        screen.press("Command4");
        QCOMPARE(screen.printer.documents, std::vector<std::string>{"Tilt of axis of K19013XP0"});
        QVERIFY(screen.frame("Frame3").isVisible());
        // Left in the midst of it, the screen is quiet when it comes back.
        screen.press("Command1");
        QVERIFY(!screen.timer().isActive());
        screen.openFor("K19013XP0");
        QVERIFY(!screen.frame("Frame3").isVisible());
        QVERIFY(!screen.timer().isActive());
    }

    void pressedWhileItPlaysItBeginsAnew() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        screen.timer().setInterval(0);
        Watcher watcher(screen);
        screen.press("Command3");
        QTRY_VERIFY(watcher.shown.size() >= 5);
        watcher.shown.clear();
        screen.press("Command3");
        QTRY_VERIFY(!screen.frame("Frame3").isVisible());
        QVERIFY(watcher.shown.size() >= 75);
        const std::vector<int> last(watcher.shown.end() - 75, watcher.shown.end());
        QCOMPARE(std::vector<int>(last.begin(), last.begin() + 25), kOnce);
    }

    void withoutItsPicturesItSaysSoAndEnds() {
        PlayScreen screen;
        std::filesystem::remove(screen.files.path() / "bkground");
        screen.openFor("K19013XP0");
        screen.timer().setInterval(0);
        screen.press("Command3");
        QTRY_VERIFY(!screen.frame("Frame3").isVisible());
        QCOMPARE(screen.inFront(), std::string("Form18"));
    }

    void itPrintsTheGraphOnShowWithItsNotes() {
        PlayScreen screen("METRIC");
        screen.openFor("K19013XP0E");
        screen.press("Command4");
        QCOMPARE(screen.printer.documents.back(), std::string("Axial play of K19013XP0E"));
        for (const char* const text :
             {"AXIAL PLAY DUE TO DIAMETRAL CLEARANCE", "CLEARANCE IN mm", "Notes:",
              "The values shown above are for Engineering Reference only!  If specific target values for",
              "axial play or tilt of axis are required, Varden's Engineering department must be consulted.",
              "The internal clearance shown above is the total diametral clearance.  It is the sum of the",
              "radial clearance contained on both sides of the bearing.  The clearance in the bearing is",
              "assumed to be equally distributed around the bearing so that the races can translate along",
              "the rotational axis evenly."})
            QVERIFY2(screen.printed(text), text);
        QVERIFY(!screen.printed("TILT OF AXIS DUE TO DIAMETRAL CLEARANCE"));
        screen.press("Option2");
        screen.press("Command4");
        QCOMPARE(screen.printer.documents.back(), std::string("Tilt of axis of K19013XP0E"));
        QVERIFY(screen.printed("TILT OF AXIS DUE TO DIAMETRAL CLEARANCE"));
    }

    void theSaveDialogGoesByTheGraphOnShow() {
        PlayScreen screen;
        screen.openFor("K19013XP0E");
        screen.press("Command2");
        screen.press("Option2");
        screen.press("Command2");
        QCOMPARE(screen.saveDialog.requests.size(), std::size_t{2});
        const SaveRequest &play = screen.saveDialog.requests[0], &tilt = screen.saveDialog.requests[1];
        QCOMPARE(play.title, std::string("Save Axial Play Graph As"));
        QCOMPARE(play.name, std::string("K19013XP0E axialplay"));
        QCOMPARE(tilt.title, std::string("Save Tilt of Axis Graph As"));
        QCOMPARE(tilt.name, std::string("K19013XP0E tilt"));
        for (const SaveRequest& request : {play, tilt}) {
            QCOMPARE(request.defaultExtension, std::string(".RTF"));
            QCOMPARE(request.folder, screen.files.path() / "save");
            QCOMPARE(request.filters.at(0).label + "|" + request.filters.at(0).pattern,
                     std::string("Rich Text File (*.rtf)|*.rtf"));
            QCOMPARE(request.filters.at(1).label + "|" + request.filters.at(1).pattern,
                     std::string("Bitmap File (*.bmp)|*.bmp"));
        }
        QCOMPARE(screen.state.lastSavedFile, std::string());
    }

    void theSavedDocumentHoldsBothGraphsOnTwoPages() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        screen.press("Option2");
        screen.saveTo("play.rtf", 1);
        screen.press("Command2");
        const std::string rtf = screen.saved("play.rtf");
        const auto at = [&](const char* text) { return rtf.find(text); };
        QVERIFY(rtf.starts_with("{\\rtf1"));
        QVERIFY(at("AXIAL PLAY DUE TO DIAMETRAL CLEARANCE") < at("\\page"));
        QVERIFY(at("\\page") < at("TILT OF AXIS DUE TO DIAMETRAL CLEARANCE"));
        QVERIFY(at("TILT OF AXIS DUE TO DIAMETRAL CLEARANCE") != std::string::npos);
        QVERIFY(at("The values show above are for Engineering Reference Only!") != std::string::npos);
        QCOMPARE(screen.state.lastSavedFile, (screen.files.path() / "play.rtf").string());
    }

    void theSavedBitmapIsThePictureOnShow() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        screen.saveTo("play.bmp", 2);
        screen.press("Command2");
        screen.press("Option2");
        screen.saveTo("tilt.bmp", 2);
        screen.press("Command2");
        const std::string play = screen.saved("play.bmp"), tilt = screen.saved("tilt.bmp");
        QVERIFY(play.starts_with("BM") && tilt.starts_with("BM"));
        QVERIFY(play != tilt);
    }

    void aFolderThatTakesNoFilesIsToldAndNothingIsLeftThere() {
        PlayScreen screen;
        screen.openFor("K19013XP0");
        std::filesystem::create_directory(screen.files.path() / "locked");
        for (const int filter : {1, 2}) {
            screen.messages.shown.clear();
            screen.saveTo("locked/play", filter);
            {
                const ReadOnlyFolder trouble(screen.files.path() / "locked");
                screen.press("Command2");
            }
            QVERIFY(screen.lastMessage().prompt.starts_with("Permission denied"));
            QVERIFY(std::filesystem::is_empty(screen.files.path() / "locked"));
            QCOMPARE(screen.state.lastSavedFile, std::string());
            QCOMPARE(screen.inFront(), std::string("Form18"));
        }
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form18Test)
#include "Form18Test.moc"
