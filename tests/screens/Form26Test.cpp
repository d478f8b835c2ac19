#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <filesystem>

#include "screens/GraphPicture.h"
#include "screens/GraphView.h"
#include "screens/Program.h"
#include "screens/Theme.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/DeflectionControls.h"

namespace norlaplan::testing {
namespace {

/// A deflection graph, opened by its small picture.
struct DeflectionGraph : Program {
    explicit DeflectionGraph(const char* picture = "Picture1", const char* preload = "0.0010",
                             const char* number = "K19013BP0T", const char* system = "US") {
        useUnits(system);
        enterNumber(number);
        click(forms::kMainMenu, "Command12");
        type(forms::kDeflection, "Text3", preload);
        click(forms::kDeflection, "Command3");
        click(forms::kDeflection, picture);
        QApplication::processEvents();
    }
    QWidget& graph() { return control<QWidget>(forms::kDeflectionGraph, "Picture1"); }
    QString readout() { return control<QLabel>(forms::kDeflectionGraph, "Readout").text(); }
    /// All texts of the graph as it is printed.
    QStringList printedTexts() {
        printer.canvas = {};
        click(forms::kDeflectionGraph, "Command1");
        QStringList texts;
        for (const RecordingCanvas::Text& text : printer.canvas.texts)
            texts.append(QString::fromStdString(text.text));
        return texts;
    }
};

/// The columns in which something of about that colour stands, none for a colour that isn't there.
std::pair<int, int> columnsOf(const QImage& picture, const QColor& colour) {
    std::pair<int, int> columns{picture.width(), -1};
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            const QColor pixel = picture.pixelColor(x, y);
            const int off = std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                            std::abs(pixel.blue() - colour.blue());
            if (off > 90) continue;
            columns.first = std::min(columns.first, x);
            columns.second = std::max(columns.second, x);
        }
    }
    return columns;
}

const QColor kRedPen(255, 0, 0), kGreenPen(0, 128, 0);

class Form26Test : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kDeflectionGraph, {kDeflectionRows, deflectionScenes()}),
                 QStringList());
    }

    void opensWithItsCaptionsAndTips() {
        DeflectionGraph program;
        QCOMPARE(program.inFront(), std::string(forms::kDeflectionGraph));
        QCOMPARE(program.screens.form(forms::kDeflectionGraph).windowTitle(), QString("Deflection Graph"));
        const std::pair<const char*, const char*> captions[] = {{"Command1", "P&rint"},
                                                                {"Command2", "<< &Previous"},
                                                                {"Command3", "&Change Graph Settings"},
                                                                {"Command4", "&Save"}};
        for (const auto& [name, caption] : captions)
            QCOMPARE(program.control<QAbstractButton>(forms::kDeflectionGraph, name).text(),
                     QString(caption));
        program.click(forms::kDeflectionGraph, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kDeflection));
    }

    void eachPictureOpensItsOwnGraph_data() {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QStringList>("titles");
        QTest::newRow("radial US") << "Picture1"
                                   << "US"
                                   << QStringList{"RADIAL DEFLECTION AT 0.0010 INCHES PRELOAD",
                                                  "RADIAL LOAD IN POUNDS", "DEFLECTION IN INCHES"};
        QTest::newRow("axial US") << "Picture2"
                                  << "US"
                                  << QStringList{"AXIAL DEFLECTION AT 0.0010 INCHES PRELOAD",
                                                 "AXIAL LOAD IN POUNDS", "DEFLECTION IN INCHES"};
        QTest::newRow("moment US") << "Picture3"
                                   << "US"
                                   << QStringList{"MOMENT DEFLECTION AT 0.0010 INCHES PRELOAD",
                                                  "MOMENT LOAD IN INCH-POUNDS", "TILT OF AXIS IN RADIANS"};
        QTest::newRow("radial metric") << "Picture1"
                                       << "METRIC"
                                       << QStringList{"RADIAL DEFLECTION AT 0.0254 MILLIMETERS PRELOAD",
                                                      "RADIAL LOAD IN NEWTONS", "DEFLECTION IN MILLIMETERS"};
        QTest::newRow("axial metric") << "Picture2"
                                      << "METRIC"
                                      << QStringList{"AXIAL DEFLECTION AT 0.0254 MILLIMETERS PRELOAD",
                                                     "AXIAL LOAD IN NEWTONS", "DEFLECTION IN MILLIMETERS"};
        QTest::newRow("moment metric")
            << "Picture3"
            << "METRIC"
            << QStringList{"MOMENT DEFLECTION AT 0.0254 MILLIMETERS PRELOAD", "MOMENT LOAD IN NEWTON METERS",
                           "TILT OF AXIS IN RADIANS"};
    }
    void eachPictureOpensItsOwnGraph() {
        QFETCH(QString, picture);
        QFETCH(QString, system);
        QFETCH(QStringList, titles);
        DeflectionGraph program(qPrintable(picture), system == "US" ? "0.0010" : "0.0254", "K19013BP0T",
                                qPrintable(system));
        const QStringList texts = program.printedTexts();
        // Turned or stacked, a title is still one text.
        for (const QString& title : titles)
            QVERIFY2(
                texts.contains(title) || texts.contains(QStringList(title.split("")).join("\n").trimmed()),
                qPrintable(title + ": " + texts.join("|")));
        QVERIFY(texts.contains("FREE RACE ANALYSIS"));
        QVERIFY(texts.contains("K19013BP0"));
    }

    void theCurveIsRedUpToReliefAndGreenBeyond() {
        for (const char* const picture : {"Picture1", "Picture2", "Picture3"}) {
            DeflectionGraph program(picture, "0.0005");
            const QImage graph = program.graph().grab().toImage();
            const auto red = columnsOf(graph, kRedPen), green = columnsOf(graph, kGreenPen);
            QVERIFY2(red.second - red.first > 10, picture);
            QVERIFY2(green.second - green.first > 10, picture);
            QVERIFY2(std::abs(red.second - green.first) <= 4, picture);
        }
    }

    void withoutPreloadTheCurveIsGreenThroughout() {
        DeflectionGraph program("Picture1", "0");
        const QImage graph = program.graph().grab().toImage();
        QCOMPARE(columnsOf(graph, kRedPen).second, -1);
        QVERIFY(columnsOf(graph, kGreenPen).second > 100);
    }

    void thePointerReadsOffLoadAndDeflection() {
        DeflectionGraph program("Picture1", "0");
        QVERIFY(program.readout().startsWith("Move the pointer"));
        const QImage graph = program.graph().grab().toImage();
        // The curve's end, on the picture.
        const int x = columnsOf(graph, kGreenPen).second;
        int y = 0;
        while (y < graph.height() - 1 && graph.pixelColor(x, y).green() - graph.pixelColor(x, y).red() < 60)
            ++y;
        const QPoint at = QPointF(x / graph.devicePixelRatio(), y / graph.devicePixelRatio()).toPoint();
        QTest::mouseMove(&program.graph(), at);
        QApplication::processEvents();
        const CurvePoint last = program.state.deflection.radialCurve.back();
        QVERIFY2(program.readout().endsWith(" inches"), qPrintable(program.readout()));
        QVERIFY(program.readout().contains(" lbs, "));
        const QString deflection = QString::number(last.deflection, 'f', 6);
        QVERIFY2(program.readout().contains(deflection), qPrintable(program.readout() + " " + deflection));
        QTest::mouseMove(&program.graph(), QPoint(2, 2));
        QApplication::processEvents();
        QVERIFY(program.readout().startsWith("Move the pointer"));
    }

    void copiesThePointsAsATable_data() {
        QTest::addColumn<bool>("byKeys");
        QTest::newRow("button") << false;
        QTest::newRow("keys") << true;
    }
    void copiesThePointsAsATable() {
        QFETCH(bool, byKeys);
        DeflectionGraph program("Picture2", "0.0254", "K19013BP0T", "METRIC");
        QGuiApplication::clipboard()->clear();
        if (byKeys)
            QTest::keyClick(&program.screens.form(forms::kDeflectionGraph), Qt::Key_C,
                            Qt::ControlModifier | Qt::ShiftModifier);
        else
            program.click(forms::kDeflectionGraph, "CopyTable");
        const QStringList lines = QGuiApplication::clipboard()->text().trimmed().split('\n');
        QCOMPARE(lines.size(), 52);
        QCOMPARE(lines[0], QString("AXIAL LOAD IN NEWTONS\tDEFLECTION IN MILLIMETERS"));
        const CurvePoint last = program.state.deflection.axialCurve.back();
        const QStringList cells = lines[51].split('\t');
        QVERIFY(std::abs(cells[0].toDouble() - last.load / 0.2248089F) < 1e-3);
        QVERIFY(std::abs(cells[1].toDouble() - last.deflection * 25.4F) < 1e-8);
    }

    void printsOnLandscapePaperWithItsNotes() {
        DeflectionGraph program;
        const QStringList texts = program.printedTexts();
        QCOMPARE(program.printer.documents.size(), std::size_t{1});
        QVERIFY(program.printer.papers[0].isLandscape());
        for (const char* const text :
             {"Notes:", "1.) The curve shown is based on nominal bearing tolerances.",
              "2.) The \"Free Race\" title implies that the races are unrestrained by the shaft or housing.",
              "NORLAPLAN-MM version 1.00", "Printed: 3/14/26 9:26 AM"})
            QVERIFY2(texts.contains(text), text);
    }

    void savesAsRtfUnderTheCurvesName() {
        const std::pair<const char*, const char*> names[] = {
            {"Picture1", " radial def"}, {"Picture2", " axial def"}, {"Picture3", " moment def"}};
        for (const auto& [picture, name] : names) {
            DeflectionGraph program(picture);
            const auto path = program.files.path() / "curve.rtf";
            program.saveDialog.choice = SaveChoice{path, 1};
            program.click(forms::kDeflectionGraph, "Command4");
            const SaveRequest& request = program.saveDialog.requests.back();
            QCOMPARE(request.title, std::string("Save Deflection Graph As"));
            QCOMPARE(request.name, "K19013BP0T" + std::string(name));
            QCOMPARE(request.defaultExtension, std::string(".rtf"));
            QCOMPARE(request.folder.filename(), std::filesystem::path("save"));
            QVERIFY(request.filters.size() >= 2);
            QCOMPARE(request.filters[0].label, std::string("Rich Text File (*.rtf)"));
            QCOMPARE(request.filters[1].label, std::string("BitMap File(*.bmp)"));
            QVERIFY(program.files.read("curve.rtf").find("FREE RACE ANALYSIS") != std::string::npos);
            QCOMPARE(program.state.lastSavedFile, path.string());
        }
    }

    void savesItsPictureAsABitmap() {
        DeflectionGraph program("Picture2", "0.0005");
        const auto path = program.files.path() / "curve.bmp";
        program.saveDialog.choice = SaveChoice{path, 2};
        program.click(forms::kDeflectionGraph, "Command4");
        const QImage picture(QString::fromStdString(path.string()));
        QVERIFY(!picture.isNull());
        const auto red = columnsOf(picture, kRedPen), green = columnsOf(picture, kGreenPen);
        QVERIFY(red.second > red.first && green.second > green.first);
        // The corner stands in the same place as on the screen.
        const QImage screen = program.graph().grab().toImage();
        const auto onScreen = columnsOf(screen, kRedPen), greenOnScreen = columnsOf(screen, kGreenPen);
        const auto share = [](const std::pair<int, int>& first, const std::pair<int, int>& second) {
            return static_cast<double>(first.second - first.first) / (second.second - first.first);
        };
        QVERIFY(std::abs(share(red, green) - share(onScreen, greenOnScreen)) < 0.02);
    }

    void aCancelledSaveLeavesNothingBehind() {
        DeflectionGraph program;
        program.click(forms::kDeflectionGraph, "Command4");
        QVERIFY(program.state.lastSavedFile.empty());
        QVERIFY(program.messages.shown.empty());
    }

    void aFolderThatCantBeWrittenIsToldOfAndTheGraphStays() {
        DeflectionGraph program;
        program.saveDialog.choice = SaveChoice{program.files.path() / "none" / "curve.rtf", 1};
        program.click(forms::kDeflectionGraph, "Command4");
        QCOMPARE(program.messages.shown.size(), std::size_t{1});
        QCOMPARE(program.inFront(), std::string(forms::kDeflectionGraph));
        QVERIFY(program.state.lastSavedFile.empty());
    }

    void theUsersOwnAxesAreOnScreenAndPaper() {
        DeflectionGraph program;
        const QImage before = program.graph().grab().toImage();
        program.click(forms::kDeflectionGraph, "Command3");
        program.control<QLineEdit>(forms::kGraphSettings, "Text1").setText("12345");
        program.control<QLineEdit>(forms::kGraphSettings, "Text2").setText("2469");
        program.click(forms::kGraphSettings, "Command1");
        QApplication::processEvents();
        QVERIFY(program.graph().grab().toImage() != before);
        QVERIFY(program.printedTexts().contains("12,345"));
    }

    void theAxisRuleGivesTheAxesOfTheGraph() {
        DeflectionGraph program;
        // The radial curve ends at its maximum, 2,453 pounds of which make three steps of a thousand.
        program.click(forms::kDeflectionGraph, "Command2");
        program.type(forms::kDeflection, "Text14", "2500");
        program.click(forms::kDeflection, "Command3");
        program.click(forms::kDeflection, "Picture1");
        QCOMPARE(program.state.graphSettings.xMax, 3000.0);
        QCOMPARE(program.state.graphSettings.xMajor, 500.0);
        const QStringList texts = program.printedTexts();
        for (const char* const label : {"0", "500", "1,000", "1,500", "2,000", "2,500", "3,000"})
            QVERIFY2(texts.contains(label), label);
    }

    void openedWithNoCurveItSaysSo() {
        Program program;
        program.screens.showAlone(forms::kMainMenu);
        program.screens.show(forms::kDeflectionGraph);
        QCOMPARE(program.control<QLabel>(forms::kDeflectionGraph, "Readout").text(),
                 QString("No curve has been calculated yet."));
        for (const char* const button : {"Command1", "Command4", "CopyTable"})
            program.click(forms::kDeflectionGraph, button);
        QVERIFY(program.printer.documents.empty());
        QVERIFY(program.saveDialog.requests.empty());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form26Test)
#include "Form26Test.moc"
