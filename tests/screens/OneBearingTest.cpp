#include <QComboBox>
#include <QLabel>
#include <QProgressDialog>

#include "screens/Program.h"

namespace norlaplan::testing {
namespace {

/// Whatever a user does on the way, the number that shows is that of the bearing that is worked with.
class OneBearingTest : public QObject {
    Q_OBJECT

  private:
    static std::string inHand(Program& program) {
        return program.control<QLabel>(forms::kMainMenu, "Label3").text().toStdString();
    }
    static void chooseStyle(Program& program, const char* picture) {
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command4");
        program.click(forms::kStyle, picture);
        program.click(forms::kStyle, "Command1");
    }
    static void enterSizes(Program& program, const char* bore, const char* od, const char* low,
                           const char* high) {
        program.type(forms::kSizes, "Text1", bore);
        program.type(forms::kSizes, "Text2", od);
        program.type(forms::kSizes, "Text3", low);
        program.type(forms::kSizes, "Text4", high);
        program.click(forms::kSizes, "Command2");
    }
    static void enterLoads(Program& program, const char* radial) {
        program.type(forms::kLoads, "Text1", radial);
        program.click(forms::kLoads, "Command1");
    }
    /// A search that finds bearings, with its loads taken.
    static void search(Program& program, const char* picture = "Image2") {
        chooseStyle(program, picture);
        enterSizes(program, "5", "9", ".2", "1.2");
        enterLoads(program, "1200");
    }
    /// The life that the screen shows of the bearing in hand under the loads in hand.
    static std::string shownLife(Program& program) {
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command14");
        return program.control<QLabel>(forms::kLife, "Label8").text().toStdString();
    }
    /// The same of a program that has done nothing before.
    static std::string freshLife(const char* number, const char* radial) {
        Program program;
        program.enterNumber(number);
        program.openLife(radial);
        return program.control<QLabel>(forms::kLife, "Label8").text().toStdString();
    }
    /// The life of K19013XP0 in hand is still that of K19013XP0.
    static void compareLife(Program& program) {
        program.screens.showAlone(forms::kMainMenu);
        QCOMPARE(inHand(program), std::string("K19013XP0"));
        QCOMPARE(shownLife(program), freshLife("K19013XP0", "1200"));
    }

  private slots:
    void aRowLeftByPreviousIsNotTheBearingInHand() {
        Program program;
        search(program);
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command7");
        program.control<QComboBox>(forms::kResults, "Combo1").setCurrentIndex(2);
        program.click(forms::kResults, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        compareLife(program);
    }

    void aRowLeftByTheCloseButtonIsNotTheBearingInHand() {
        Program program;
        search(program);
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command7");
        program.control<QComboBox>(forms::kResults, "Combo1").setCurrentIndex(2);
        program.screens.form(forms::kResults).close();
        compareLife(program);
    }

    void aStoppedSearchLeavesTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        chooseStyle(program, "Image3");
        enterSizes(program, "0", "4", "0", "1.2");
        program.messages.decide = [&](const Message&) {
            program.screens.form(forms::kResults).findChild<QProgressDialog*>("SearchProgress")->cancel();
            return Answer::Yes;
        };
        enterLoads(program, "1200");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command7");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        compareLife(program);
    }

    void aSearchThatFailsLeavesTheBearingInHand() {
        Program program;
        namespace fs = std::filesystem;
        const fs::path tables = program.files.path() / "Data Tables";
        fs::remove(tables);
        fs::copy(programFolder() / "Data Tables", tables);
        search(program);
        program.enterNumber("K19013XP0");
        fs::remove(tables / "20-X.csv");
        program.click(forms::kMainMenu, "Command7");
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '53'"));
        compareLife(program);
    }

    void aSearchLeavesTheBearingInHand() {
        Program program;
        search(program);
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command7");
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        program.screens.form(forms::kResults).close();
        compareLife(program);
    }

    void aHalfTypedNumberIsNotTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200");
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command8");
        program.type(forms::kPartNumber, "Text1", "K10013C");
        program.click(forms::kPartNumber, "Command3");
        compareLife(program);
    }

    void aTypedSeparatorChoiceIsNotThatOfTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200");
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command8");
        program.type(forms::kPartNumber, "Text1", "K19013XZ0");
        program.click(forms::kPartNumber, "Option5");
        program.click(forms::kPartNumber, "Command3");
        // A change of units decodes the bearing again.
        program.screens.show(forms::kUnits);
        program.click(forms::kUnits, "Command1");
        compareLife(program);
    }

    void aPictureClickedIsNotTheStyleOfTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200");
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command4");
        program.click(forms::kStyle, "Image5");
        program.screens.form(forms::kStyle).close();
        compareLife(program);
    }

    void aLoadThatIsSetTo0IsNotCalculatedWith() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200", "500");
        program.enterNumber("K19013CP0");
        program.click(forms::kMainMenu, "Command13");
        program.screens.form(forms::kLoads).close();
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command14");
        QCOMPARE(program.control<QLabel>(forms::kLife, "Label5").text(), QString("AXIAL  = 0 pounds"));
        compareLife(program);
    }

    void theLoadScreenOfAKnownBearingNamesItsOwnStyle() {
        Program program;
        search(program, "Image5");
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command13");
        QCOMPARE(program.screens.form(forms::kLoads).windowTitle(),
                 QString("BEARING LOAD INPUT FOR 4-POINT CONTACT K19013XP0"));
    }

    void theLoadScreenOfASearchNamesNoOtherBearing() {
        Program program;
        search(program);
        program.enterNumber("K19013CP0");
        program.click(forms::kMainMenu, "Command6");
        QCOMPARE(program.screens.form(forms::kLoads).windowTitle(),
                 QString("BEARING LOAD INPUT FOR 4-POINT CONTACT "));
    }

    void aSearchFindsTheSameAfterAChangeOfUnitsAndBack() {
        Program program;
        program.useUnits("METRIC");
        chooseStyle(program, "Image2");
        enterSizes(program, "100", "126", "13", "13");
        enterLoads(program, "1200");
        const auto found = [&] {
            return program.state.search.rows.size() == 1 ? program.state.search.rows[0].name : "";
        };
        QCOMPARE(found(), std::string("K10013XP0"));
        for (const char* const unit : {"Option1", "Option2"}) {
            program.screens.showAlone(forms::kMainMenu);
            program.screens.show(forms::kUnits);
            program.click(forms::kUnits, unit);
            program.click(forms::kUnits, "Command1");
            program.click(forms::kMainMenu, "Command7");
            QCOMPARE(program.inFront(), std::string(forms::kResults));
            QCOMPARE(found(), std::string("K10013XP0"));
        }
    }

    void aRefusedHitLeadsToTheEntryScreenAndFromThereToTheMenu() {
        Program program;
        namespace fs = std::filesystem;
        const fs::path tables = program.files.path() / "Data Tables";
        fs::remove(tables);
        fs::copy(programFolder() / "Data Tables", tables);
        search(program);
        fs::remove(tables / "XSEPARATOR.CSV");
        program.click(forms::kResults, "Command1");
        QCOMPARE(program.lastMessage().title, std::string("Please recheck validity of part number"));
        QCOMPARE(program.inFront(), std::string(forms::kPartNumber));
        program.click(forms::kPartNumber, "Command3");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(inHand(program), std::string());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::OneBearingTest)
#include "OneBearingTest.moc"
