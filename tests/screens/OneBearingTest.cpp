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
        return program.control<QLabel>("Form3", "Label3").text().toStdString();
    }
    static void chooseStyle(Program& program, const char* picture) {
        program.screens.showAlone("Form3");
        program.click("Form3", "Command4");
        program.click("Form16", picture);
        program.click("Form16", "Command1");
    }
    static void enterSizes(Program& program, const char* bore, const char* od, const char* low,
                           const char* high) {
        program.type("Form12", "Text1", bore);
        program.type("Form12", "Text2", od);
        program.type("Form12", "Text3", low);
        program.type("Form12", "Text4", high);
        program.click("Form12", "Command2");
    }
    static void enterLoads(Program& program, const char* radial) {
        program.type("Form14", "Text1", radial);
        program.click("Form14", "Command1");
    }
    /// A search that finds bearings, with its loads taken.
    static void search(Program& program, const char* picture = "Image2") {
        chooseStyle(program, picture);
        enterSizes(program, "5", "9", ".2", "1.2");
        enterLoads(program, "1200");
    }
    /// The life that the screen shows of the bearing in hand under the loads in hand.
    static std::string shownLife(Program& program) {
        program.screens.showAlone("Form3");
        program.click("Form3", "Command14");
        return program.control<QLabel>("Form19", "Label8").text().toStdString();
    }
    /// The same of a program that has done nothing before.
    static std::string freshLife(const char* number, const char* radial) {
        Program program;
        program.enterNumber(number);
        program.openLife(radial);
        return program.control<QLabel>("Form19", "Label8").text().toStdString();
    }
    /// The life of K19013XP0 in hand is still that of K19013XP0.
    static void compareLife(Program& program) {
        program.screens.showAlone("Form3");
        QCOMPARE(inHand(program), std::string("K19013XP0"));
        QCOMPARE(shownLife(program), freshLife("K19013XP0", "1200"));
    }

  private slots:
    void aRowLeftByPreviousIsNotTheBearingInHand() {
        Program program;
        search(program);
        program.enterNumber("K19013XP0");
        program.click("Form3", "Command7");
        program.control<QComboBox>("Form15", "Combo1").setCurrentIndex(2);
        program.click("Form15", "Command2");
        QCOMPARE(program.inFront(), std::string("Form14"));
        compareLife(program);
    }

    void aRowLeftByTheCloseButtonIsNotTheBearingInHand() {
        Program program;
        search(program);
        program.enterNumber("K19013XP0");
        program.click("Form3", "Command7");
        program.control<QComboBox>("Form15", "Combo1").setCurrentIndex(2);
        program.screens.form("Form15").close();
        compareLife(program);
    }

    void aStoppedSearchLeavesTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        chooseStyle(program, "Image3");
        enterSizes(program, "0", "4", "0", "1.2");
        program.messages.decide = [&](const Message&) {
            program.screens.form("Form15").findChild<QProgressDialog*>("SearchProgress")->cancel();
            return Answer::Yes;
        };
        enterLoads(program, "1200");
        QCOMPARE(program.inFront(), std::string("Form14"));
        program.enterNumber("K19013XP0");
        program.click("Form3", "Command7");
        QCOMPARE(program.inFront(), std::string("Form14"));
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
        program.click("Form3", "Command7");
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '53'"));
        compareLife(program);
    }

    void aSearchLeavesTheBearingInHand() {
        Program program;
        search(program);
        program.enterNumber("K19013XP0");
        program.click("Form3", "Command7");
        QCOMPARE(program.inFront(), std::string("Form15"));
        program.screens.form("Form15").close();
        compareLife(program);
    }

    void aHalfTypedNumberIsNotTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200");
        program.screens.showAlone("Form3");
        program.click("Form3", "Command8");
        program.type("Form9", "Text1", "K10013C");
        program.click("Form9", "Command3");
        compareLife(program);
    }

    void aTypedSeparatorChoiceIsNotThatOfTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200");
        program.screens.showAlone("Form3");
        program.click("Form3", "Command8");
        program.type("Form9", "Text1", "K19013XZ0");
        program.click("Form9", "Option5");
        program.click("Form9", "Command3");
        // A change of units decodes the bearing again.
        program.screens.show("Form6");
        program.click("Form6", "Command1");
        compareLife(program);
    }

    void aPictureClickedIsNotTheStyleOfTheBearingInHand() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200");
        program.screens.showAlone("Form3");
        program.click("Form3", "Command4");
        program.click("Form16", "Image5");
        program.screens.form("Form16").close();
        compareLife(program);
    }

    void aLoadThatIsSetTo0IsNotCalculatedWith() {
        Program program;
        program.enterNumber("K19013XP0");
        program.openLife("1200", "500");
        program.enterNumber("K19013CP0");
        program.click("Form3", "Command13");
        program.screens.form("Form14").close();
        program.enterNumber("K19013XP0");
        program.click("Form3", "Command14");
        QCOMPARE(program.control<QLabel>("Form19", "Label5").text(), QString("AXIAL  = 0 pounds"));
        compareLife(program);
    }

    void aRefusedHitLeadsToTheEntryScreenAndFromThereToTheMenu() {
        Program program;
        namespace fs = std::filesystem;
        const fs::path tables = program.files.path() / "Data Tables";
        fs::remove(tables);
        fs::copy(programFolder() / "Data Tables", tables);
        search(program);
        fs::remove(tables / "XSEPARATOR.CSV");
        program.click("Form15", "Command1");
        QCOMPARE(program.lastMessage().title, std::string("Please recheck validity of part number"));
        QCOMPARE(program.inFront(), std::string("Form9"));
        program.click("Form9", "Command3");
        QCOMPARE(program.inFront(), std::string("Form3"));
        QCOMPARE(inHand(program), std::string());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::OneBearingTest)
#include "OneBearingTest.moc"
