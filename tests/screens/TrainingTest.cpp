#include <QPushButton>

#include "screens/Information.h"
#include "screens/Training.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/InformationControls.h"

namespace norlaplan::testing {
namespace {

/// The main menu with its training button, an office program that obeys the test, pictures and a show.
struct Menu : Program {
    Menu() {
        giveInformation(*this);
        screens.show(forms::kMainMenu);
    }
    QPushButton& button() { return control<QPushButton>(forms::kMainMenu, "Command2"); }
    /// The colour of the button's picture: yellow is the lit monitor of the test, black the dark one.
    QColor picture() { return button().icon().pixmap(QSize(16, 16), 1.0).toImage().pixelColor(8, 8); }
    void press() { click(forms::kMainMenu, "Command2"); }
    bool isAtRest() {
        return button().text() == "Training" && button().accessibleName() == "Training" &&
               picture() == QColor(Qt::black) && !screens.form(forms::kTrainingShow).isVisible();
    }
};

}  // namespace

/// The bearing training: the show of the office program behind the main menu's button.
class TrainingTest : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kTrainingShow, {kInformationRows, informationScenes()}),
                 QStringList());
    }

    void theButtonSaysThatTheShowRunsAndGoesBackWhenItEnds() {
        Menu menu;
        QCOMPARE(menu.button().text(), QString("Bearing Training"));
        QCOMPARE(menu.picture(), QColor(Qt::black));
        menu.press();
        QCOMPARE(menu.button().text(), QString("Loading..."));
        QCOMPARE(menu.button().accessibleName(), QString("Loading..."));
        QCOMPARE(menu.picture(), QColor(Qt::yellow));
        QCOMPARE(menu.inFront(), std::string(forms::kTrainingShow));
        QCOMPARE(menu.office.shows.size(), std::size_t{1});
        QCOMPARE(menu.office.shows.front(), menu.files.path() / "training/varden.pps");
        QCOMPARE(menu.control<QLineEdit>(forms::kTrainingShow, "File").text().toStdString(),
                 (menu.files.path() / "training/varden.pps").string());
        menu.office.end();
        QVERIFY(menu.isAtRest());
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        QVERIFY(menu.messages.shown.empty());
    }

    void theCaptionAfterAShowIsShorterThanTheOneBeforeTheFirst() {
        Menu menu;
        menu.press();
        menu.office.end();
        QCOMPARE(menu.button().text(), QString("Training"));
        QVERIFY(menu.button().shortcut().toString().startsWith("Alt+"));
    }

    void escapeHidesTheNoteAndTheShowGoesOn() {
        Menu menu;
        menu.press();
        QTest::keyClick(menu.screens.current()->focusWidget(), Qt::Key_Escape);
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(menu.button().text(), QString("Loading..."));
        QVERIFY(menu.office.runs());
    }

    void whileItRunsTheButtonStartsNoSecondShow() {
        Menu menu;
        menu.press();
        menu.click(forms::kTrainingShow, "MainMenu");
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        menu.press();
        QCOMPARE(menu.inFront(), std::string(forms::kTrainingShow));
        QCOMPARE(menu.office.shows.size(), std::size_t{1});
        menu.office.end();
        QVERIFY(menu.isAtRest());
        menu.press();
        QCOMPARE(menu.office.shows.size(), std::size_t{2});
    }

    void theEndOfAShowLeavesTheScreenThatIsInFront() {
        Menu menu;
        menu.press();
        menu.click(forms::kTrainingShow, "MainMenu");
        menu.screens.show(forms::kUnits);
        menu.office.end();
        QCOMPARE(menu.inFront(), std::string(forms::kUnits));
        QVERIFY(menu.isAtRest());
        menu.screens.current()->close();
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void theEndOfAShowUnderTheHelpTakesTheNoteAway() {
        Menu menu;
        menu.press();
        QTest::keyClick(menu.screens.current(), Qt::Key_F1);
        QCOMPARE(int(menu.state.helpTopic), 10);
        menu.office.end();
        QCOMPARE(menu.inFront(), std::string(forms::kHelpTopic));
        menu.screens.current()->close();
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void aShowThatFailsIsToldByItsNumber_data() {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("prompt");
        QTest::newRow("31024") << 31024 << "Error Attempting to Run Training Module"
                               << "Cannot link to Microsoft PowerPoint, please run outside of Rotaplan, file "
                                  "location is: FOLDERbla bla";
        QTest::newRow("429") << 429 << "Unable to open .ppt file"
                             << "Error linking to MS PowerPoint";
        QTest::newRow("440") << 440 << "Automation error"
                             << "440";
    }
    void aShowThatFailsIsToldByItsNumber() {
        QFETCH(int, number);
        QFETCH(QString, title);
        QFETCH(QString, prompt);
        const auto expected = [&](const Menu& menu) {
            const QString folder = QString::fromStdString(menu.files.path().string());
            return Message{title.toStdString(), QString(prompt).replace("FOLDER", folder).toStdString()};
        };
        Menu menu;
        menu.press();
        menu.office.end(RuntimeError(number));
        QCOMPARE(menu.lastMessage(), expected(menu));
        QVERIFY(menu.isAtRest());
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));

        menu.messages.shown.clear();
        menu.office.fault = number;
        menu.press();
        QCOMPARE(menu.lastMessage(), expected(menu));
        QCOMPARE(menu.messages.shown.size(), std::size_t{1});
        QVERIFY(menu.isAtRest());
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void aMissingShowIsToldByItsNumberToo() {
        Menu menu;
        menu.take("training/varden.pps");
        menu.press();
        QCOMPARE(menu.lastMessage(),
                 (Message{"File not found: " + (menu.files.path() / "training/varden.pps").string(), "53"}));
        QVERIFY(menu.isAtRest());
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void withoutThePictureOfTheLitMonitorTheShowDoesNotBegin() {
        Menu menu;
        menu.take("icons/onmoniter.ico");
        menu.press();
        QCOMPARE(menu.lastMessage(),
                 (Message{"Run-time error '53'",
                          "File not found: " + (menu.files.path() / "icons/onmoniter.ico").string() +
                              "\n\nBearing Training",
                          Icon::Critical}));
        QCOMPARE(menu.button().text(), QString("Bearing Training"));
        QVERIFY(menu.office.shows.empty());
        menu.give("icons/onmoniter.ico", "no picture");
        menu.press();
        QCOMPARE(menu.lastMessage().title, std::string("Run-time error '481'"));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void withoutThePictureOfTheDarkMonitorTheShowStillEnds() {
        Menu menu;
        menu.take("icons/offmoniter.ico");
        menu.press();
        menu.office.end(RuntimeError(429));
        QCOMPARE(menu.button().text(), QString("Training"));
        QCOMPARE(menu.messages.shown.size(), std::size_t{2});
        QCOMPARE(menu.messages.shown[0].title, std::string("Run-time error '53'"));
        QCOMPARE(menu.messages.shown[1].title, std::string("Unable to open .ppt file"));
        QVERIFY(!menu.screens.form(forms::kTrainingShow).isVisible());
    }

    void withoutPicturesTheMainMenuStillComesUp() {
        Program program;
        program.take("icons/offmoniter.ico");
        program.screens.show(forms::kMainMenu);
        QCOMPARE(program.control<QPushButton>(forms::kMainMenu, "Command2").text(),
                 QString("Bearing Training"));
        QVERIFY(program.messages.shown.empty());
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::TrainingTest)
#include "TrainingTest.moc"
