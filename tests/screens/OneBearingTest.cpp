#include <QComboBox>
#include <QLabel>
#include <QProgressDialog>

#include "screens/SearchingUser.h"

namespace norlaplan::testing {
namespace {

constexpr const char* kNumber = "K19013XP0";

/// Works with a bearing, and does other things on the way.
struct BearingUser : SearchingUser {
    std::string inHand() { return label(forms::kMainMenu, "Label3"); }
    /// A search that finds bearings, with its loads taken.
    void search(int picture = 2) {
        chooseStyle(picture);
        enterSizes("5", "9", ".2", "1.2");
        enterLoads("1200");
    }
    /// The same search once more, with the bearing in hand.
    void searchAgainWithTheBearingInHand() {
        enterNumber(kNumber);
        click(forms::kMainMenu, "Command7");
    }
    /// A list with a row chosen, that of another bearing.
    void chooseARow() {
        search();
        searchAgainWithTheBearingInHand();
        control<QComboBox>(forms::kResults, "Combo1").setCurrentIndex(2);
    }
    /// The bearing with its life, and from the menu on to the screen of a button.
    void solveAndGoTo(const char* button) {
        enterNumber(kNumber);
        openLife("1200");
        screens.showAlone(forms::kMainMenu);
        click(forms::kMainMenu, button);
    }
    /// The life that the screen shows of the bearing in hand under the loads in hand.
    std::string shownLife() {
        screens.showAlone(forms::kMainMenu);
        click(forms::kMainMenu, "Command14");
        return label(forms::kLife, "Label8");
    }
    std::string label(FormName form, const char* name) {
        return control<QLabel>(form, name).text().toStdString();
    }
};

/// Whatever a user does on the way, the number that shows is that of the bearing that is worked with.
class OneBearingTest : public QObject {
    Q_OBJECT

  private:
    /// The bearing in hand is still the one, and its life what a program shows that has done nothing before.
    static void compareLife(BearingUser& program) {
        program.screens.showAlone(forms::kMainMenu);
        QCOMPARE(program.inHand(), std::string(kNumber));
        BearingUser fresh;
        fresh.enterNumber(kNumber);
        fresh.openLife("1200");
        QCOMPARE(program.shownLife(), fresh.label(forms::kLife, "Label8"));
    }

  private slots:
    void aRowLeftByPreviousIsNotTheBearingInHand() {
        BearingUser program;
        program.chooseARow();
        program.click(forms::kResults, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        compareLife(program);
    }

    void aRowLeftByTheCloseButtonIsNotTheBearingInHand() {
        BearingUser program;
        program.chooseARow();
        program.screens.form(forms::kResults).close();
        compareLife(program);
    }

    void aStoppedSearchLeavesTheBearingInHand() {
        BearingUser program;
        program.enterNumber(kNumber);
        program.chooseStyle(3);
        program.enterSizes("0", "4", "0", "1.2");
        program.messages.decide = [&](const Message&) {
            program.screens.form(forms::kResults).findChild<QProgressDialog*>("SearchProgress")->cancel();
            return Answer::Yes;
        };
        program.enterLoads("1200");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        program.searchAgainWithTheBearingInHand();
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        compareLife(program);
    }

    void aSearchThatFailsLeavesTheBearingInHand() {
        BearingUser program;
        program.search();
        program.take("Data Tables/20-X.csv");
        program.searchAgainWithTheBearingInHand();
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '53'"));
        compareLife(program);
    }

    void aSearchLeavesTheBearingInHand() {
        BearingUser program;
        program.search();
        program.searchAgainWithTheBearingInHand();
        QCOMPARE(program.inFront(), std::string(forms::kResults));
        program.screens.form(forms::kResults).close();
        compareLife(program);
    }

    void aHalfTypedNumberIsNotTheBearingInHand() {
        BearingUser program;
        program.solveAndGoTo("Command8");
        program.type(forms::kPartNumber, "Text1", "K10013C");
        program.click(forms::kPartNumber, "Command3");
        compareLife(program);
    }

    void aTypedSeparatorChoiceIsNotThatOfTheBearingInHand() {
        BearingUser program;
        program.solveAndGoTo("Command8");
        program.type(forms::kPartNumber, "Text1", "K19013XZ0");
        program.click(forms::kPartNumber, "Option5");
        program.click(forms::kPartNumber, "Command3");
        // A change of units decodes the bearing again.
        program.screens.show(forms::kUnits);
        program.click(forms::kUnits, "Command1");
        compareLife(program);
    }

    void aPictureClickedIsNotTheStyleOfTheBearingInHand() {
        BearingUser program;
        program.solveAndGoTo("Command4");
        program.click(forms::kStyle, "Image5");
        program.screens.form(forms::kStyle).close();
        compareLife(program);
    }

    void aLoadThatIsSetTo0IsNotCalculatedWith() {
        BearingUser program;
        program.enterNumber(kNumber);
        program.openLife("1200", "500");
        program.enterNumber("K19013CP0");
        program.click(forms::kMainMenu, "Command13");
        program.screens.form(forms::kLoads).close();
        program.enterNumber(kNumber);
        program.click(forms::kMainMenu, "Command14");
        QCOMPARE(program.control<QLabel>(forms::kLife, "Label5").text(), QString("AXIAL  = 0 pounds"));
        compareLife(program);
    }

    void theLoadScreenOfAKnownBearingNamesItsOwnStyle() {
        BearingUser program;
        program.search(5);
        program.enterNumber(kNumber);
        program.click(forms::kMainMenu, "Command13");
        QCOMPARE(program.screens.form(forms::kLoads).windowTitle(),
                 QString("BEARING LOAD INPUT FOR 4-POINT CONTACT K19013XP0"));
    }

    void theLoadScreenOfASearchNamesNoOtherBearing() {
        BearingUser program;
        program.search();
        program.enterNumber("K19013CP0");
        program.click(forms::kMainMenu, "Command6");
        QCOMPARE(program.screens.form(forms::kLoads).windowTitle(),
                 QString("BEARING LOAD INPUT FOR 4-POINT CONTACT "));
    }

    void aSearchFindsTheSameAfterAChangeOfUnitsAndBack() {
        BearingUser program;
        program.useUnits("METRIC");
        program.chooseStyle(2);
        program.enterSizes("100", "126", "13", "13");
        program.enterLoads("1200");
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
        BearingUser program;
        program.search();
        program.take("Data Tables/XSEPARATOR.CSV");
        program.click(forms::kResults, "Command1");
        QCOMPARE(program.lastMessage().title, std::string("Please recheck validity of part number"));
        QCOMPARE(program.inFront(), std::string(forms::kPartNumber));
        program.click(forms::kPartNumber, "Command3");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(program.inHand(), std::string());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::OneBearingTest)
#include "OneBearingTest.moc"
