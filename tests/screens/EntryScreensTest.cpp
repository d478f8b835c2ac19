#include <QLabel>
#include <QToolButton>
#include <array>
#include <map>
#include <utility>

#include "screens/SearchingUser.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/SearchEntryControls.h"

namespace norlaplan::testing {
namespace {

using Names = QStringList;

/// A user who goes by keyboard through the screens that ask for style, sizes and loads.
struct Typist : SearchingUser {
    Typist() {
        useUnits("US");
        screens.show(forms::kMainMenu);
    }
    QString focus() const {
        const QWidget* const found = screens.current()->focusWidget();
        return found == nullptr ? QString() : found->objectName();
    }
    /// The controls that have the focus after each press of Enter, from the one that the form opens with.
    Names byEnter(int presses) {
        Names names = {focus()};
        for (int i = 0; i < presses; ++i) {
            QTest::keyClick(screens.current()->focusWidget(), Qt::Key_Return);
            names << focus();
        }
        return names;
    }
    /// The fields of the form in front that are shown, from above.
    Names fieldsFromAbove() const {
        std::map<int, QString> byPlace;
        for (const auto* const field : screens.current()->findChildren<QLineEdit*>()) {
            if (field->isVisible())
                byPlace[field->mapTo(screens.current(), QPoint(0, 0)).y()] = field->objectName();
        }
        Names names;
        for (const auto& [place, name] : byPlace)
            names << name;
        return names;
    }
    /// What the label of a field reads.
    QString labelOf(const char* field) const {
        for (const auto* const label : screens.current()->findChildren<QLabel*>()) {
            if (label->buddy() != nullptr && label->buddy()->objectName() == field) return label->text();
        }
        return {};
    }
    /// Takes what is in a field and goes on: the message that comes, and the field that then has the focus.
    std::pair<std::string, QString> complaintAbout(FormName form, const char* field, const char* text,
                                                   const char* proceed) {
        messages.shown.clear();
        control<QLineEdit>(form, field).setText(text);
        click(form, proceed);
        return {lastMessage().title + ": " + lastMessage().prompt, focus()};
    }
};

/// The styles' screen forms::kStyle, the sizes' forms::kSizes and the loads' forms::kLoads, in the hands of a
/// user.
class EntryScreensTest : public QObject {
    Q_OBJECT

  private slots:
    void theirControlsAreAsTheirRowsSay() {
        const ControlTable table{kSearchEntryRows, searchEntryScenes()};
        QCOMPARE(controlsThatDiffer(forms::kStyle, table), QStringList());
        QCOMPARE(controlsThatDiffer(forms::kSizes, table), QStringList());
    }

    void aStyleIsChosenByItsPictureAlone_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("letter");
        QTest::addColumn<QString>("description");
        const char* const angular = "Angular Contact Bearings Duplexed ";
        QTest::newRow("1") << "BACK-TO-BACK SET"
                           << "A" << QString(angular) + "Back-to-Back";
        QTest::newRow("2") << "4-POINT CONTACT"
                           << "X"
                           << "4-Point Contact Bearing";
        QTest::newRow("3") << "FACE-TO-FACE SET"
                           << "A" << QString(angular) + "Face-to-Face";
        QTest::newRow("4") << "BACK-TO-BACK SET WITH SPACERS"
                           << "A" << QString(angular) + "Back-to-Back with Spacers";
        QTest::newRow("5") << "RADIAL CONTACT"
                           << "C"
                           << "Radial Contact Bearing";
        QTest::newRow("6") << "FACE-TO-FACE SET WITH SPACERS"
                           << "A" << QString(angular) + "Face-to-Face with Spacers";
    }
    void aStyleIsChosenByItsPictureAlone() {
        QFETCH(QString, caption);
        QFETCH(QString, letter);
        QFETCH(QString, description);
        Typist program;
        program.screens.show(forms::kStyle);
        // Another is chosen before.
        const std::string name = std::string("Image") + QTest::currentDataTag();
        program.click(forms::kStyle, name == "Image2" ? "Image3" : "Image2");
        program.click(forms::kStyle, name.c_str());
        QCOMPARE(program.state.style.searchStyleCaption, caption.toStdString());
        QCOMPARE(program.state.style.searchStyleLetter, letter.toStdString());
        QCOMPARE(program.control<QLabel>(forms::kStyle, "Label1").text(), description);
        for (int image = 1; image <= 6; ++image) {
            const QByteArray each = "Image" + QByteArray::number(image);
            QCOMPARE(program.control<QToolButton>(forms::kStyle, each.constData()).isChecked(),
                     name == each.toStdString());
        }
        program.click(forms::kStyle, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kSizes));
        QCOMPARE(program.screens.current()->windowTitle(), "BEARING SIZE SELECTION FOR " + caption);
    }

    void theChosenStyleAloneIsFramedAndTicked() {
        Typist program;
        program.screens.show(forms::kStyle);
        auto& picture = program.control<QToolButton>(forms::kStyle, "Image2");
        const auto seen = [&] {
            picture.clearFocus();
            return picture.grab().toImage().convertToFormat(QImage::Format_RGB32);
        };
        const QRgb accent = qRgb(190, 84, 0), green = qRgb(0, 122, 42), white = qRgb(255, 255, 255);
        const QImage before = seen();
        program.click(forms::kStyle, "Image2");
        const QImage after = seen();
        const int right = after.width() - 1, bottom = after.height() - 1;
        // A frame of four pixels on all four sides.
        for (int inset = 0; inset < 4; ++inset) {
            for (const QPoint place : {QPoint(inset, 100), QPoint(100, inset), QPoint(right - inset, 100),
                                       QPoint(100, bottom - inset), QPoint(right - inset, bottom - inset)}) {
                QVERIFY(before.pixel(place) != accent);
                QCOMPARE(after.pixel(place), accent);
            }
        }
        for (const QPoint place :
             {QPoint(5, 100), QPoint(100, 5), QPoint(right - 5, 100), QPoint(100, bottom - 5)})
            QVERIFY(after.pixel(place) != accent);
        // A disc of 28 pixels with a tick, twice the frame off the right and the upper edge.
        const QPoint disc(after.width() - 36, 8);
        QCOMPARE(after.pixel(disc + QPoint(14, 2)), green);
        QCOMPARE(after.pixel(disc + QPoint(14, 25)), green);
        QCOMPARE(after.pixel(disc + QPoint(2, 14)), green);
        QCOMPARE(after.pixel(disc + QPoint(25, 14)), green);
        QCOMPARE(after.pixel(disc + QPoint(12, 19)), white);
        program.click(forms::kStyle, "Image5");
        QCOMPARE(seen(), before);
    }

    void thePicturesOfTheStylesStandInTwoRowsInTheirOrder() {
        Typist program;
        program.screens.show(forms::kStyle);
        QApplication::processEvents();
        std::array<QPoint, 6> places;
        for (int image = 0; image < 6; ++image) {
            const QByteArray name = "Image" + QByteArray::number(image + 1);
            places.at(static_cast<std::size_t>(image)) =
                program.control<QWidget>(forms::kStyle, name.constData()).geometry().topLeft();
        }
        for (std::size_t row : {0U, 3U}) {
            QVERIFY(places.at(row).x() < places.at(row + 1).x() &&
                    places.at(row + 1).x() < places.at(row + 2).x());
            QCOMPARE(places.at(row).y(), places.at(row + 2).y());
        }
        for (std::size_t column : {0U, 1U, 2U}) {
            QCOMPARE(places.at(column).x(), places.at(column + 3).x());
            QVERIFY(places.at(column).y() < places.at(column + 3).y());
        }
    }

    void sizesAreEnteredFromAboveWithEnter() {
        Typist program;
        program.chooseStyle(2);
        QCOMPARE(program.inFront(), std::string(forms::kSizes));
        QApplication::processEvents();
        QCOMPARE(program.fieldsFromAbove(), Names({"Text1", "Text2", "Text4", "Text3"}));
        QCOMPARE(program.byEnter(4), Names({"Text1", "Text2", "Text4", "Text3", "Command2"}));
        QCOMPARE(program.labelOf("Text1"), QString("MINIMUM BORE (in)"));
        QCOMPARE(program.labelOf("Text2"), QString("MAXIMUM OUTER DIAMETER (in)"));
        QCOMPARE(program.labelOf("Text3"), QString("MIN. HEIGHT (in)"));
        QCOMPARE(program.labelOf("Text4"), QString("MAX. HEIGHT (in)"));
    }

    void loadsAreEnteredFromAboveWithEnter() {
        Typist program;
        program.chooseStyle(2);
        program.enterSizes("5", "9", ".2", "1.2");
        QCOMPARE(program.inFront(), std::string(forms::kLoads));
        QApplication::processEvents();
        QCOMPARE(program.fieldsFromAbove(), Names({"Text1", "Text2", "Text3", "Text4"}));
        QCOMPARE(program.byEnter(4), Names({"Text1", "Text2", "Text3", "Text4", "Command1"}));
        QCOMPARE(program.labelOf("Text1"), QString("RADIAL (lbs)"));
        QCOMPARE(program.labelOf("Text2"), QString("AXIAL (lbs)"));
        QCOMPARE(program.labelOf("Text3"), QString("MOMENT (in-lbs)"));
        QCOMPARE(program.labelOf("Text4"), QString("SPEED (RPM)"));
    }

    void aRadialBearingIsAskedForItsRadialLoadAndItsSpeedAlone() {
        Typist program;
        program.chooseStyle(5);
        program.enterSizes("5", "9", ".2", "1.2");
        QApplication::processEvents();
        QCOMPARE(program.fieldsFromAbove(), Names({"Text1", "Text4"}));
        QCOMPARE(program.byEnter(2), Names({"Text1", "Text4", "Command1"}));
        QCOMPARE(program.screens.current()->windowTitle().trimmed(),
                 QString("BEARING LOAD INPUT FOR RADIAL CONTACT"));
    }

    void aBearingWithoutASpeedIsNotAskedForIt() {
        Typist program;
        for (const auto& [number, keys] :
             {std::pair{"K19013XF0", Names({"Text1", "Text2", "Text3", "Command1"})},
              std::pair{"K19013CF0", Names({"Text1", "Command1"})}}) {
            program.enterNumber(number);
            program.click(forms::kMainMenu, "Command13");
            QCOMPARE(program.inFront(), std::string(forms::kLoads));
            QVERIFY(!program.control<QWidget>(forms::kLoads, "Text4").isEnabled());
            QCOMPARE(program.byEnter(int(keys.size()) - 1), keys);
        }
    }

    void theWindowOfTheLoadsNamesTheBearingInHand() {
        Typist program;
        program.enterNumber("K19013XP0");
        program.click(forms::kMainMenu, "Command13");
        QCOMPARE(program.screens.current()->windowTitle(),
                 QString("BEARING LOAD INPUT FOR 4-POINT CONTACT K19013XP0"));
    }

    void eachSizeThatIsMissingIsAskedForInTurnAndGetsTheFocus() {
        Typist program;
        program.chooseStyle(2);
        const auto about = [&](const char* field) {
            return program.complaintAbout(forms::kSizes, field, "", "Command2");
        };
        using Told = std::pair<std::string, QString>;
        QCOMPARE(about("Text1"), Told("Missing Data: Please Enter Minimum Bore", "Text1"));
        program.type(forms::kSizes, "Text1", "5");
        QCOMPARE(about("Text2"), Told("Missing Data: Please Enter Maximum Outer Diameter", "Text2"));
        program.type(forms::kSizes, "Text2", "9");
        QCOMPARE(about("Text4"), Told("Missing Data: Please Enter Maximum Height", "Text4"));
        program.type(forms::kSizes, "Text4", "1.2");
        QCOMPARE(about("Text3"), Told("Missing Data: Please Enter Minimum Height", "Text3"));
    }

    void eachLoadThatIsNoNumberIsToldAndGetsTheFocus() {
        Typist program;
        program.chooseStyle(2);
        program.enterSizes("5", "9", ".2", "1.2");
        program.typeLoads("500", "100");
        using Told = std::pair<std::string, QString>;
        for (const auto& [field, told] : {std::pair{"Text1", "Please correct load: Radial Load input error"},
                                          std::pair{"Text2", "Please correct load: Axial Load input error"},
                                          std::pair{"Text3", "Please correct load: Moment Load input error"},
                                          std::pair{"Text4", "Please correct Speed: Speed input error"}}) {
            QCOMPARE(program.complaintAbout(forms::kLoads, field, "much", "Command1"), Told(told, field));
            program.control<QLineEdit>(forms::kLoads, field).setText("7");
        }
    }

    void loadsThatAreAllMissingAreToldOnceForEachStyle() {
        Typist program;
        program.chooseStyle(2);
        program.enterSizes("5", "9", ".2", "1.2");
        program.enterLoads("0");
        QCOMPARE(program.lastMessage().title, std::string("Missing Loads"));
        QCOMPARE(program.lastMessage().prompt, std::string("At least one load must be entered!"));
        program.chooseStyle(5);
        program.enterSizes("5", "9", ".2", "1.2");
        program.enterLoads("0");
        QCOMPARE(program.lastMessage().title, std::string("Missing Load"));
        QCOMPARE(program.lastMessage().prompt, std::string("You must enter a Radial Load"));
    }

    void previousLeadsBackStepByStep() {
        Typist program;
        program.chooseStyle(2);
        program.enterSizes("5", "9", ".2", "1.2");
        program.click(forms::kLoads, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kSizes));
        // What was entered still stands there.
        for (const auto& [field, text] : {std::pair{"Text1", "5"}, std::pair{"Text2", "9"},
                                          std::pair{"Text3", ".2"}, std::pair{"Text4", "1.2"}})
            QCOMPARE(program.control<QLineEdit>(forms::kSizes, field).text().toDouble(),
                     QString(text).toDouble());
        program.click(forms::kSizes, "Command1");
        QCOMPARE(program.inFront(), std::string(forms::kStyle));
        QVERIFY(program.control<QToolButton>(forms::kStyle, "Image2").isChecked());
        program.click(forms::kStyle, "Command2");
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::EntryScreensTest)
#include "EntryScreensTest.moc"
