#include <QPushButton>
#include <cmath>
#include <cstdio>

#include "screens/GraphScreen.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/FitsControls.h"
#include "support/DiskTroubles.h"
#include "support/PlainTorque.h"

namespace norlaplan::testing {
namespace {

struct TorqueScreen : GraphScreen {
    explicit TorqueScreen(const char* units = "US") : GraphScreen("Form23", "Command10") { useUnits(units); }

    bool metric() const { return state.unitSystem == "METRIC"; }
    double shownPreload(double inches) const {
        return metric() ? inches * static_cast<double>(25.4F) : inches;
    }
    double shownTorque(double inchPounds) const {
        return metric() ? inchPounds / static_cast<double>(8.850744F) : inchPounds;
    }
};

/// Where the rows of the plain curve stand in the picture.
class PlainPlaces {
  public:
    explicit PlainPlaces(const TorqueScreen& screen)
        : screen_(screen), curve_(PlainTorqueCurve(screen.state.bearing).curve()) {
        xMost_ = screen.metric() ? 0.13 / 25.4 : static_cast<double>(0.005F);
        const double top = torque(50);
        const double tens = std::pow(10.0, std::floor(std::log10(top)));
        yMost_ = (std::floor(top / tens) + 1.0) * tens;
    }

    double x(int row) const { return 0.75 + 7.25 * preload(row) / xMost_; }
    double y(int row) const { return 0.5 + 4.0 * torque(row) / yMost_; }
    QString text(int row) const {
        char both[60];
        std::snprintf(both, sizeof both, "%.4f , %.1f", screen_.shownPreload(preload(row)), torque(row));
        return both;
    }

  private:
    double preload(int row) const { return curve_.preload[static_cast<std::size_t>(row)]; }
    double torque(int row) const { return screen_.shownTorque(curve_.torque[static_cast<std::size_t>(row)]); }

    const TorqueScreen& screen_;
    PlainTorque curve_;
    double xMost_, yMost_;
};

constexpr QRgb kRangeGrey = qRgb(224, 224, 224);

/// The preload torque screen by the controls that a user works with.
class Form23Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kPreloadTorque, {kFitsRows, fitsScenes()}), QStringList());
    }

    void itOpensForEveryStyleThatItIsMeantFor_data() {
        QTest::addColumn<QString>("units");
        QTest::newRow("US") << "US";
        QTest::newRow("metric") << "METRIC";
    }
    void itOpensForEveryStyleThatItIsMeantFor() {
        QFETCH(QString, units);
        TorqueScreen screen(qPrintable(units));
        for (const std::string& number : numbersOf({"X", "C", "F", "B"})) {
            screen.openFor(number);
            QVERIFY2(screen.messages.shown.empty(), (number + ": " + screen.lastMessage().prompt).c_str());
            QCOMPARE(screen.inFront(), std::string("Form23"));
            QCOMPARE(screen.state.torque.partNumber, number);
            // The curve is drawn in bright red.
            QVERIFY2(screen.pixelsOfHue(0) > 100, number.c_str());
        }
    }

    void forOtherStylesTheMenuSaysWhyItStaysShut() {
        for (const char* const number : {"K19013AP0", "K19013UP0", "K19013TP0A"}) {
            TorqueScreen screen;
            screen.openFor(number);
            QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
            QCOMPARE(screen.lastMessage(),
                     (Message{"Wrong Bearing style", "Only Duplexes , 'C' or 'X' styles allowed",
                              Icon::Critical}));
        }
    }

    void captionsAndTipsAreTheStatedOnes() {
        TorqueScreen screen;
        QCOMPARE(screen.screens.form("Form23").windowTitle(), QString("Preload Torque"));
        screen.compareButton("Form23", "Command1", "&Save", "Save Results to file");
        screen.compareButton("Form23", "Command5", "P&rint", "Print Results of calculations");
        screen.compareButton("Form23", "Command3", "&Main Menu", "Return to Main Menu");
    }

    void theReadoutFollowsThePointerAcrossTheWholePicture_data() {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("units");
        for (const char* const units : {"US", "METRIC"}) {
            for (const char* const number : {"K19013XP0", "K19013CP0R", "K19013FP0R", "K19013BP0E"})
                QTest::newRow(qPrintable(QString("%1 %2").arg(number, units))) << number << units;
        }
    }
    void theReadoutFollowsThePointerAcrossTheWholePicture() {
        QFETCH(QString, number);
        QFETCH(QString, units);
        TorqueScreen screen(qPrintable(units));
        screen.openFor(number.toStdString());
        const PlainPlaces places(screen);
        // The points count from 0.0001 inch, the pointer's place from 0: it reads off the next point.
        for (int row = 1; row <= 50; ++row)
            QCOMPARE(screen.readoutAt(places.x(row - 1), places.y(row)), places.text(row));
        QCOMPARE(screen.readoutAt(places.x(50), places.y(50)), QString());
    }

    void farFromTheCurveThereIsNoReadout() {
        TorqueScreen screen;
        screen.openFor("K19013XP0");
        const PlainPlaces places(screen);
        // A hair within half an inch above the point, and as much beyond.
        QCOMPARE(screen.readoutAt(places.x(20), places.y(21) + 0.45), places.text(21));
        QCOMPARE(screen.readoutAt(places.x(20), places.y(21) + 0.55), QString());
        QCOMPARE(screen.readoutAt(0.3, 0.6), QString());
    }

    void aCrossMarksThePointThatIsReadOff() {
        TorqueScreen screen;
        screen.openFor("K19013XP0");
        const PlainPlaces places(screen);
        const QImage before = screen.seen();
        QCOMPARE(screen.readoutAt(places.x(10), places.y(10)), places.text(11));
        const QImage marked = screen.seen();
        // Two of the six arms lie level, from 0.1 to 0.3 inches off the point.
        for (const double side : {-0.2, 0.2}) {
            const QPoint arm = screen.pixelOf(places.x(11) + side, places.y(11));
            QVERIFY(before.copy(QRect(arm - QPoint(1, 1), QSize(3, 3))) !=
                    marked.copy(QRect(arm - QPoint(1, 1), QSize(3, 3))));
        }
        QTest::mouseMove(&screen.picture(), {1, 1});
        QVERIFY(screen.seen() == before);
    }

    void onlyThePreloadLettersHaveAGreyRange() {
        for (const auto& [number, grey] : {std::pair{"K19013XP0R", true},
                                           {"K19013FP0R", true},
                                           {"K19013XP0E", false},
                                           {"K19013XP0Z", false},
                                           {"K19013XP0", false}}) {
            TorqueScreen screen;
            screen.openFor(number);
            QVERIFY2((screen.pixelsOf(kRangeGrey) > 200) == grey, number);
        }
    }

    void inMillimetresTheRangeOfUsualPreloadsCollapses() {
        TorqueScreen screen("METRIC");
        screen.openFor("K19013XP0R");
        QVERIFY(screen.pixelsOf(kRangeGrey) < 50);
        screen.press("Command5");
        QVERIFY(screen.printed("\"R\" PRELOAD RANGE IN GREY"));
    }

    void itPrintsTheGraphWithAllItsNotes() {
        TorqueScreen screen;
        screen.openFor("K19013XP0R");
        screen.press("Command5");
        QCOMPARE(screen.printer.documents, std::vector<std::string>{"Preload torque of K19013XP0R"});
        for (const char* const text :
             {"K19013XP0R", "UNMOUNTED STARTING TORQUE DUE TO PRELOAD", "PRELOAD IN INCHES",
              "\"R\" PRELOAD RANGE IN GREY",
              "Notes:", "1.) “Starting torque” is defined as the amount of torque to initiate rotation.",
              "2.) Torque values shown are based on preload values only, and ", "do not include",
              " the following:", "a. The effects of any interference fits with the shaft or housing.",
              "b. The effects of viscous lubricant drag.", "c. Any externally applied loads.",
              "d. Environmental factors such as thermal gradiants within the bearing.",
              "3.) Although the graph shows a maximum preload value of 0.0050, this does not guarantee",
              "     that the K19013XP0R bearing can be safely preloaded to that value, it is shown for "
              "reference only.",
              "4.) Torque values shown are for reference only.  If there is a specific torque requirement,",
              "     Varden should be contacted for assistance in establishing an acceptance limit."})
            QVERIFY2(screen.printed(text), text);
    }

    void theTitlesNameTheUnits() {
        TorqueScreen screen("METRIC");
        screen.openFor("K19013XP0");
        screen.press("Command5");
        QVERIFY(screen.printed("PRELOAD IN MILLIMETERS"));
        QVERIFY(!screen.printed("PRELOAD IN INCHES"));
    }

    void aCancelledPrintLeavesEverythingAsItWas() {
        TorqueScreen screen;
        screen.openFor("K19013XP0");
        screen.printer.accepts = false;
        screen.press("Command5");
        QVERIFY(screen.printer.documents.empty());
        QVERIFY(screen.messages.shown.empty());
        QCOMPARE(screen.inFront(), std::string("Form23"));
    }

    void theSaveDialogProposesTheNumberAndTwoKinds() {
        TorqueScreen screen;
        screen.openFor("k19013xp0r");
        screen.press("Command1");
        QCOMPARE(screen.saveDialog.requests.size(), std::size_t{1});
        const SaveRequest& request = screen.saveDialog.requests.front();
        QCOMPARE(request.title, std::string("Save Torque Graph As"));
        QCOMPARE(request.name, std::string("K19013XP0R-Torque"));
        QCOMPARE(request.defaultExtension, std::string(".rtf"));
        QCOMPARE(request.folder, screen.files.path() / "save");
        QCOMPARE(request.filters.at(0).label + "|" + request.filters[0].pattern,
                 std::string("Rich Text File (*.rtf)|*.RTF"));
        QCOMPARE(request.filters.at(1).label + "|" + request.filters[1].pattern,
                 std::string("BitMap File(*.bmp)|*.BMP"));
        // Cancelled, it leaves no trace.
        QCOMPARE(screen.state.lastSavedFile, std::string());
        QVERIFY(screen.messages.shown.empty());
    }

    void theSavedDocumentHasAxesOfItsOwn() {
        TorqueScreen screen("METRIC");
        screen.openFor("K19013XP0");
        screen.saveTo("graph.rtf", 1);
        screen.press("Command1");
        const std::string rtf = screen.saved("graph.rtf");
        QVERIFY(rtf.starts_with("{\\rtf1"));
        // The screen's axis ends at 0.13 mm, that of the document at 0.15.
        for (const char* const text : {"K19013XP0", "PRELOAD IN MILLIMETERS", "TORQUE  IN  NEWTON  METERS",
                                       "0.150", "{\\ul do not include}"})
            QVERIFY2(rtf.find(text) != std::string::npos, text);
        QCOMPARE(screen.state.lastSavedFile, (screen.files.path() / "graph.rtf").string());
        QVERIFY(!std::filesystem::exists(screen.files.path() / "TEMPORARY.DAT"));
    }

    void theSavedBitmapIsThePicture() {
        TorqueScreen screen;
        screen.openFor("K19013XP0R");
        screen.saveTo("graph.bmp", 2);
        screen.press("Command1");
        const QImage image(QString::fromStdString((screen.files.path() / "graph.bmp").string()));
        QVERIFY(!image.isNull());
        QVERIFY(std::abs(image.width() * 5.0 - image.height() * 8.5) <= 9.0);
        int grey = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y)
                grey += image.pixel(x, y) == kRangeGrey ? 1 : 0;
        }
        QVERIFY(grey > 200);
        QCOMPARE(screen.state.lastSavedFile, (screen.files.path() / "graph.bmp").string());
    }

    void aFolderThatTakesNoFilesIsToldAndNothingIsLeftThere() {
        TorqueScreen screen;
        screen.openFor("K19013XP0");
        std::filesystem::create_directory(screen.files.path() / "locked");
        screen.saveTo("locked/graph.rtf", 1);
        {
            const ReadOnlyFolder trouble(screen.files.path() / "locked");
            screen.press("Command1");
        }
        QVERIFY(screen.lastMessage().prompt.starts_with("Permission denied"));
        QVERIFY(std::filesystem::is_empty(screen.files.path() / "locked"));
        QCOMPARE(screen.state.lastSavedFile, std::string());
        QCOMPARE(screen.inFront(), std::string("Form23"));
    }

    void aFullDiskKeepsTheFileThatWasThere() {
        TorqueScreen screen;
        screen.openFor("K19013XP0");
        screen.files.write("graph.rtf", "before");
        screen.saveTo("graph.rtf", 1);
        {
            const FullDisk trouble(screen.files.path());
            screen.press("Command1");
        }
        QVERIFY(screen.lastMessage().prompt.starts_with("Disk full"));
        QCOMPARE(screen.saved("graph.rtf"), std::string("before"));
    }

    void itComputesAnewForEachBearing() {
        TorqueScreen screen;
        screen.openFor("K19013XP0");
        screen.press("Command3");
        QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
        screen.openFor("K10013CP0");
        const PlainPlaces places(screen);
        QCOMPARE(screen.readoutAt(places.x(30), places.y(30)), places.text(31));
        screen.screens.form("Form23").close();
        QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form23Test)
#include "Form23Test.moc"
