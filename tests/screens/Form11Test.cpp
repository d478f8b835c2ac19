#include <QAction>
#include <QLabel>

#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/CorrespondenceControls.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

struct UserInformation : Program {
    UserInformation() {
        useUnits("US");
        state.user.userName = "Ann";
        state.user.userMailSuffix = " ";
        screens.show(forms::kMainMenu);
        control<QAction>(forms::kMainMenu, "userinfo").trigger();
    }
};

}  // namespace

class Form11Test : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kUserInfo, {kCorrespondenceRows, correspondenceScenes()}),
                 QStringList());
    }

    void labels_and_tips_are_as_stated() {
        UserInformation program;
        QCOMPARE(program.screens.current()->windowTitle(), QString("User Information"));
        QCOMPARE(program.control<QAbstractButton>("Form11", "Command1").text(),
                 QString("Save Data and Exit"));
        const char* const rows[8][2] = {
            {"Name", "Your Name"},
            {"Company", "Company Name"},
            {"Address line 1", "Company Address"},
            {"Address line 2", "Company Address"},
            {"Title", "Job Title"},
            {"Phone #", "Phone Number with Country Code"},
            {"Fax #", "Fax number with Country Code"},
            {"Email Subject suffix", "Automatically created Email Subject Line for \"Send to\" option"}};
        for (int i = 1; i <= 8; ++i) {
            const QString number = QString::number(i);
            auto& field = program.control<QLineEdit>("Form11", qPrintable("Text" + number));
            auto& label = program.control<QLabel>("Form11", qPrintable("Label" + number));
            QCOMPARE(label.text(), QString(rows[i - 1][0]));
            QCOMPARE(field.toolTip(), QString(rows[i - 1][1]));
            QCOMPARE(label.buddy(), &field);
        }
    }

    void shows_what_is_known_and_a_filling_blank_as_nothing() {
        UserInformation program;
        QCOMPARE(program.control<QLineEdit>("Form11", "Text1").text(), QString("Ann"));
        QCOMPARE(program.control<QLineEdit>("Form11", "Text8").text(), QString());
    }

    void saves_the_eight_texts_in_the_order_of_the_file_and_leaves_data() {
        QTest::addColumn<QString>("way");
        for (const char* const way : {"button", "window", "Escape"})
            QTest::newRow(way) << way;
    }
    void saves_the_eight_texts_in_the_order_of_the_file_and_leaves() {
        QFETCH(QString, way);
        UserInformation program;
        for (const char* const field :
             {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8"})
            program.type("Form11", field, field);
        if (way == "button") program.click("Form11", "Command1");
        if (way == "window") program.screens.current()->close();
        if (way == "Escape") QTest::keyClick(program.screens.current(), Qt::Key_Escape);
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(
            program.files.read("SETTINGS.INI"),
            std::string("Text1\r\nText5\r\nText2\r\nText3\r\nText4\r\nText6\r\nText7\r\nText8\r\nUS\r\n"));
        QCOMPARE(program.state.user.userMailSuffix, std::string("Text8"));
    }

    void a_line_break_that_was_pasted_does_not_break_the_file() {
        UserInformation program;
        program.control<QLineEdit>("Form11", "Text1").setText("Ann\nB.");
        program.click("Form11", "Command1");
        QVERIFY(program.files.read("SETTINGS.INI").starts_with("Ann B.\r\n \r\n"));
    }

    void a_file_that_cannot_be_written_is_told_and_does_not_hold_the_user() {
        UserInformation program;
        std::filesystem::create_directory(program.files.path() / "SETTINGS.INI");
        program.type("Form11", "Text1", "Bob");
        program.click("Form11", "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(program.lastMessage(),
                 (Message{"User Information",
                          "SETTINGS.INI could not be written: Path/File access error: " +
                              (program.files.path() / "SETTINGS.INI").string() +
                              ".\n\nThe data are kept until the program ends.",
                          Icon::Critical}));
        QCOMPARE(program.state.user.userName, std::string("Bob"));
    }
};

QTEST_MAIN(Form11Test)
#include "Form11Test.moc"
