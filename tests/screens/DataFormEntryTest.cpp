#include <QApplication>
#include <map>

#include "screens/AnalysisProgram.h"

Q_DECLARE_METATYPE(std::function<double(const norlaplan::ProgramState&)>)

namespace norlaplan::testing {
namespace {

/// A bearing with balls of a quarter inch in grooves of 53 %: their centres are 0.015 inches apart.
struct Grooves : Analysis {
    Grooves() {
        solve("K19013XP0");
        openAnalysis();
        enter("Text1", "0.25");
        enter("Text5", "53");
        enter("Text6", "53");
    }
};

/// Where each entry goes.
const std::map<std::string, double (*)(const ProgramState&)> kPlaces = {
    {"Text1", [](const ProgramState& state) { return double{state.solver.BallDiameter}; }},
    {"Text2", [](const ProgramState& state) { return double{state.solver.PitchDiameter}; }},
    {"Text3", [](const ProgramState& state) { return double{int{state.solver.BallCount} * 1.0}; }},
    {"Text4", [](const ProgramState& state) { return double{state.solver.ContactAngleDeg}; }},
    {"Text17", [](const ProgramState& state) { return double{state.solver.ContactAngle}; }},
    {"Text5", [](const ProgramState& state) { return double{state.solver.InnerConformityPct}; }},
    {"Text6", [](const ProgramState& state) { return double{state.solver.OuterConformityPct}; }},
    {"Text13", [](const ProgramState& state) { return double{state.solver.GapDistance}; }},
    {"Text66", [](const ProgramState& state) { return double{state.solver.CenterlineSpacing}; }},
    {"Text14", [](const ProgramState& state) { return double{state.solver.RadialLoad}; }},
    {"Text48", [](const ProgramState& state) { return double{state.solver.AxialLoad}; }},
    {"Text49", [](const ProgramState& state) { return double{state.solver.MomentLoad}; }},
    {"Text8", [](const ProgramState& state) { return double{state.solver.InnerModulusMpsi}; }},
    {"Text9", [](const ProgramState& state) { return double{state.solver.InnerPoisson}; }},
    {"Text11", [](const ProgramState& state) { return double{state.solver.OuterModulusMpsi}; }},
    {"Text12", [](const ProgramState& state) { return double{state.solver.OuterPoisson}; }},
    {"Text63", [](const ProgramState& state) { return double{state.analysis.startingFriction}; }},
    {"Text64", [](const ProgramState& state) { return double{state.analysis.runningFriction}; }},
};

class DataFormEntryTest : public QObject {
    Q_OBJECT

  private slots:
    void aFieldAndItsCompanionKeepInStep_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("companion");
        QTest::addColumn<double>("factor");
        QTest::newRow("ball diameter") << "Text1"
                                       << "Text15" << 25.4;
        QTest::newRow("pitch diameter") << "Text2"
                                        << "Text16" << 25.4;
        QTest::newRow("gap") << "Text13"
                             << "Text45" << 25.4;
        QTest::newRow("spacing") << "Text66"
                                 << "Text65" << 25.4;
        QTest::newRow("radial load") << "Text14"
                                     << "Text20" << 4.448;
        QTest::newRow("axial load") << "Text48"
                                    << "Text50" << 4.448;
        QTest::newRow("moment") << "Text49"
                                << "Text51" << 0.11298;
        QTest::newRow("ball modulus") << "Text8"
                                      << "Text18" << 6.895;
        QTest::newRow("race modulus") << "Text11"
                                      << "Text19" << 6.895;
    }
    void aFieldAndItsCompanionKeepInStep() {
        QFETCH(QString, field);
        QFETCH(QString, companion);
        QFETCH(double, factor);
        Analysis program;
        program.solve("K10013BP0C");
        program.openAnalysis();
        const QByteArray name = field.toUtf8(), other = companion.toUtf8();
        program.enter(name.constData(), "2.5");
        QCOMPARE(program.shown(name.constData()), std::string("2.5"));
        program.compareNumber(other.constData(), 2.5 * factor);
        program.enter(other.constData(), "10");
        QCOMPARE(program.shown(other.constData()), std::string("10"));
        program.compareNumber(name.constData(), 10.0 / factor);
    }

    void everyEntryIsStoredInItsPlace_data() {
        QTest::addColumn<QString>("field");
        for (const auto& [field, stored] : kPlaces)
            QTest::newRow(field.c_str()) << QString::fromStdString(field);
    }
    void everyEntryIsStoredInItsPlace() {
        QFETCH(QString, field);
        Analysis program;
        program.solve("K10013BP0C");
        program.openAnalysis();
        const QByteArray name = field.toUtf8();
        const auto stored = kPlaces.at(field.toStdString());
        program.enter(name.constData(), "7");
        QCOMPARE(stored(program.state), 7.0);
        // What is no number counts as 0, what begins with one as that.
        program.enter(name.constData(), "abc");
        QCOMPARE(stored(program.state), 0.0);
        QCOMPARE(program.shown(name.constData()), std::string("0"));
        program.enter(name.constData(), "8X");
        QCOMPARE(stored(program.state), 8.0);
        program.enter(name.constData(), "");
        QCOMPARE(stored(program.state), 0.0);
        QVERIFY(program.messages.shown.empty());
    }

    void aNumberTooLargeIsToldAndTheFieldShowsWhatIsStored_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");
        QTest::newRow("beyond 32 bits") << "Text14"
                                        << "1e39"
                                        << "6";
        QTest::newRow("beyond 64 bits") << "Text14"
                                        << "1e999"
                                        << "6";
        QTest::newRow("kept in 64 bits") << "Text1"
                                         << "1e39"
                                         << "6";
        QTest::newRow("in millimeters") << "Text15"
                                        << "1e42"
                                        << "6";
        QTest::newRow("beyond 16 bits") << "Text3"
                                        << "40000"
                                        << "6";
        QTest::newRow("fewer balls than none") << "Text3"
                                               << "-3"
                                               << "9";
        QTest::newRow("angle") << "Text4"
                               << "1e39"
                               << "6";
    }
    void aNumberTooLargeIsToldAndTheFieldShowsWhatIsStored() {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QString, number);
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        const QByteArray name = field.toUtf8();
        const std::string before = program.shown(name.constData());
        program.enter(name.constData(), qPrintable(text));
        QCOMPARE(program.messages.shown.size(), std::size_t{1});
        QCOMPARE(program.lastMessage().title, "Run-time error '" + number.toStdString() + "'");
        QCOMPARE(program.inFront(), std::string(forms::kAnalysis));
        QCOMPARE(program.shown(name.constData()), before);
        program.enter(name.constData(), "12");
        QCOMPARE(program.shown(name.constData()), std::string("12"));
        QCOMPARE(program.messages.shown.size(), std::size_t{1});
    }

    void theLargestNumbersOf32BitsAreTaken() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        program.enter("Text14", "3e38");
        QVERIFY(program.messages.shown.empty());
        QVERIFY(program.field("Text20").text().toDouble() > 1.3e39);
    }

    void theContactAngleSetsTheClearanceAndTheRadians() {
        Grooves program;
        program.enter("Text4", "30");
        QCOMPARE(program.shown("Text4"), std::string("30"));
        QCOMPARE(program.shown("Text17"), std::string("0.5236"));
        // 2 * 0.015 * (1 - cos 30) = 0.0040192, in millimeters 0.1020886
        QCOMPARE(program.shown("Text43"), std::string("0.00402"));
        QCOMPARE(program.shown("Text44"), std::string("0.10209"));
    }

    void theContactAngleInRadiansSetsTheDegreesAndTheClearance() {
        Grooves program;
        program.enter("Text17", "0.785398163");
        QCOMPARE(program.shown("Text4"), std::string("45."));
        // 0.03 * (1 - cos 45) = 0.0087868, in millimeters 0.2231847
        QCOMPARE(program.shown("Text43"), std::string("0.00879"));
        QCOMPARE(program.shown("Text44"), std::string("0.22318"));
    }

    void theClearanceSetsTheContactAngle() {
        Grooves program;
        // cos a = 1 - 0.015 / 0.03
        program.enter("Text43", "0.015");
        QCOMPARE(program.shown("Text44"), std::string("0.381"));
        QCOMPARE(program.shown("Text4"), std::string("60."));
        QCOMPARE(program.shown("Text17"), std::string("1.0472"));
        program.enter("Text4", "30");
        program.enter("Text44", "0.381");
        QCOMPARE(program.shown("Text43"), std::string("0.015"));
        QCOMPARE(program.shown("Text4"), std::string("60."));
    }

    void anImpossibleClearanceIsToldAndTheScreenGoesOn_data() {
        QTest::addColumn<QString>("clearance");
        QTest::addColumn<QString>("title");
        QTest::newRow("a preload has no angle") << "-0.001"
                                                << "Run-time error '5'";
        QTest::newRow("no distance of the grooves is left") << "0.06"
                                                            << "Run-time error '11'";
    }
    void anImpossibleClearanceIsToldAndTheScreenGoesOn() {
        QFETCH(QString, clearance);
        QFETCH(QString, title);
        Grooves program;
        if (title.contains("11")) {
            // Grooves as round as the balls: their centres fall together.
            program.enter("Text5", "50");
            program.enter("Text6", "50");
        }
        program.enter("Text43", qPrintable(clearance));
        QCOMPARE(QString::fromStdString(program.lastMessage().title), title);
        QVERIFY(program.lastMessage().prompt.ends_with("DC (+) or Preload (-), in."));
        QCOMPARE(program.inFront(), std::string(forms::kAnalysis));
        QCOMPARE(program.shown("Text43"), clearance.toStdString());
        QCOMPARE(program.state.solver.DiametralClearance, Single(clearance.toDouble()));
        QCOMPARE(program.shown("Text4"), std::string("0."));
        QCOMPARE(program.shown("Text17"), std::string("0."));
        program.enter("Text5", "53");
        program.enter("Text6", "53");
        program.enter("Text43", "0.015");
        QCOMPARE(program.shown("Text4"), std::string("60."));
        QCOMPARE(program.messages.shown.size(), std::size_t{1});
    }

    void theContactAngleOfARadialBearingOverwritesItsClearance() {
        Analysis program;
        program.solve("K19013CP0", "500", "", "");
        program.openAnalysis();
        const Single before = program.state.solver.DiametralClearance;
        program.enter("Text4", "20");
        QVERIFY(program.state.solver.DiametralClearance != before);
    }

    void aMaterialFillsNameModulusAndPoissonsRatio_data() {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("balls") << "Combo1" << QStringList{"Text7", "Text8", "Text9", "Text18"};
        QTest::newRow("races") << "Combo2" << QStringList{"Text10", "Text11", "Text12", "Text19"};
    }
    void aMaterialFillsNameModulusAndPoissonsRatio() {
        QFETCH(QString, list);
        QFETCH(QStringList, fields);
        const std::vector<QStringList> materials = {
            {"52100", "29", "0.25"},   {"440C", "29", "0.25"},    {"17-4PH", "28.5", "0.272"},
            {"8620", "29.7", "0.281"}, {"4150", "29.7", "0.281"}, {"Si3N4", "46", "0.26"},
            {"S-Monel", "24", "0.25"}, {"316 SS", "28", "0.25"},  {"6061-T6", "10", "0.316"}};
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        const auto shown = [&](int i) { return program.field(qPrintable(fields[i])).text(); };
        const QByteArray name = list.toUtf8();
        auto& combo = program.control<QComboBox>(forms::kAnalysis, name.constData());
        QCOMPARE(combo.count(), 10);
        QCOMPARE(combo.currentIndex(), 9);
        for (int row = 0; row < 9; ++row) {
            const QStringList& material = materials[static_cast<std::size_t>(row)];
            QCOMPARE(combo.itemText(row), material[0]);
            program.pick(name.constData(), row);
            for (int i = 0; i < 3; ++i)
                QCOMPARE(shown(i), material[i]);
        }
        program.compareNumber(qPrintable(fields[3]), 10.0 * 6.895);
        program.pick(name.constData(), 9);
        QCOMPARE(shown(0), QString());
        QCOMPARE(shown(1), QString("10"));
        QCOMPARE(shown(2), QString("0.316"));
    }

    void aSpacingTakesItsSignFromTheChoice() {
        Analysis program;
        program.solve("K19013FR0A");
        program.openAnalysis();
        program.enter("Text66", "-0.5");
        QCOMPARE(program.state.solver.CenterlineSpacing, Single(0.5));
        QCOMPARE(program.shown("Text66"), std::string("0.5"));
        program.mark("Option4");
        QCOMPARE(program.state.solver.CenterlineSpacing, Single(-0.5));
        QCOMPARE(program.shown("Text65"), std::string("-12.7"));
        program.enter("Text65", "25.4");
        QCOMPARE(program.state.solver.CenterlineSpacing, Single(-1.0));
        program.mark("Option3");
        QCOMPARE(program.shown("Text66"), std::string("1"));
    }

    void aStyleExcludesTheOthersAndGivesAPairItsClearance() {
        Grooves program;
        program.enter("Text4", "30");
        program.enter("Text13", "0.001");
        program.state.solver.DiametralClearance = 0.5;
        program.mark("Option6");
        const SolverState& solver = program.state.solver;
        QVERIFY(solver.StyleIsB && !solver.StyleIsX && !solver.StyleIsF && !solver.StyleIsC);
        QCOMPARE(program.shown("Text43"), std::string("0.00402"));
        QCOMPARE(program.shown("Text44"), std::string("0.10209"));
        QVERIFY(program.field("Text13").isEnabled());
        program.mark("Option7");
        QVERIFY(solver.StyleIsF && !solver.StyleIsB);
        program.mark("Option5");
        QVERIFY(solver.StyleIsX && !solver.StyleIsF);
        QVERIFY(!program.field("Text13").isEnabled());
    }

    void leavingAFieldAsItIsStoresNothing() {
        Analysis program;
        program.solve("K10013BP0C");
        program.openAnalysis();
        // The clearance shows rounded.
        const Single before = program.state.solver.DiametralClearance;
        QVERIFY(std::abs(program.field("Text43").text().toDouble() - before) > 1e-8);
        program.field("Text43").setFocus();
        QTest::keyClick(&program.field("Text43"), Qt::Key_Return);
        QCOMPARE(program.state.solver.DiametralClearance, before);
    }

    void enterLeadsToTheNextFieldAndLeavesItsText() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        QApplication::setActiveWindow(program.screens.current());
        const std::string pitch = program.shown("Text16");
        program.field("Text2").setFocus();
        QTest::keyClick(&program.field("Text2"), Qt::Key_Return);
        QVERIFY(program.field("Text16").hasFocus());
        QCOMPARE(program.shown("Text16"), pitch);
        QCOMPARE(program.field("Text16").selectedText().toStdString(), pitch);
        // The fields of a pair are out of use: from the clearance it goes on behind them.
        program.field("Text44").setFocus();
        QTest::keyClick(&program.field("Text44"), Qt::Key_Return);
        QVERIFY(program.field("Text14").hasFocus());
        QCOMPARE(program.inFront(), std::string(forms::kAnalysis));
    }

    void nameDateAndMaterialsAreKeptAsTheyAreTyped() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        program.enter("Text22", "Spindle 7");
        program.enter("Text24", "today");
        program.enter("Text10", "M50");
        const AnalysisNotes& notes = program.state.analysis;
        QCOMPARE(notes.partNumber, std::string("Spindle 7"));
        QCOMPARE(notes.date, std::string("today"));
        QCOMPARE(notes.raceMaterial, std::string("M50"));
        QCOMPARE(program.control<QComboBox>(forms::kAnalysis, "Combo2").currentIndex(), 9);
        QCOMPARE(program.state.bearing.partNumber, std::string("K19013XP0"));
    }

    void fewerOrMoreBallsLeaveTheOtherScreensWhole() {
        Analysis program;
        program.solve("K19013XP0");
        program.openAnalysis();
        const int balls = program.state.solver.BallCount;
        program.enter("Text3", "500");
        QCOMPARE(program.state.solver.BallLoad(1, 500), 0.0);
        QVERIFY(program.state.solver.BallLoad(1, 1) > 0.0);
        program.enter("Text3", "2");
        QCOMPARE(int{program.state.solver.BallCount}, 2);
        QVERIFY(program.state.solver.BallLoad(1, balls) > 0.0);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::DataFormEntryTest)
#include "DataFormEntryTest.moc"
