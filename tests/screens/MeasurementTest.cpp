#include "screens/Program.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/StartControls.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

struct Measurement : Program {
    explicit Measurement(const char* system) {
        state.unitSystem = system;
        ApplyUnitSystem(system, state.units);
        screens.show(forms::kMainMenu);
        screens.show(forms::kUnits);
    }
};

}  // namespace

class MeasurementTest : public QObject {
    Q_OBJECT

  private slots:
    void its_controls_are_as_their_rows_say() {
        QCOMPARE(controlsThatDiffer(forms::kUnits, {kStartRows, startScenes()}), QStringList());
    }

    void cancel_changes_nothing() {
        Measurement screen("US");
        screen.click(forms::kUnits, "Option2");
        screen.click(forms::kUnits, "Command2");
        QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(screen.state.unitSystem, std::string("US"));
        QVERIFY(!std::filesystem::exists(screen.files.path() / "SETTINGS.INI"));
    }

    void accepting_converts_what_was_entered_although_the_label_says_cleared() {
        Measurement screen("US");
        screen.state.entries.minBore = "2";
        screen.state.entries.radial = "100";
        screen.click(forms::kUnits, "Option2");
        screen.click(forms::kUnits, "Command1");
        QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
        QCOMPARE(screen.state.units.lengthUnit, std::string("mm"));
        QCOMPARE(screen.state.entries.minBore, std::string("50.800"));
        // 100 pounds are 444.82 newtons.
        QCOMPARE(screen.state.entries.radial, std::string("445"));
        QVERIFY(screen.state.entries.maxOd.empty());
        QCOMPARE(screen.screens.form(forms::kMainMenu).palette().color(QPalette::Window),
                 QColor(192, 255, 192));
    }

    void accepting_saves_the_settings_with_a_blank_for_each_empty_text() {
        Measurement screen("US");
        screen.click(forms::kUnits, "Command1");
        QCOMPARE(screen.files.read("SETTINGS.INI"),
                 std::string(" \r\n \r\n \r\n \r\n \r\n \r\n \r\n \r\nUS\r\n"));
    }

    void accepting_decodes_the_bearing_again_in_the_new_units() {
        Measurement screen("US");
        screen.state.bearing.partNumber = "K19013XP0";
        screen.click(forms::kUnits, "Option2");
        screen.click(forms::kUnits, "Command1");
        QVERIFY2(screen.messages.shown.empty(), screen.lastMessage().prompt.c_str());
        QVERIFY(screen.files.read("CONDENSED.DAT").find("(METRIC)") != std::string::npos);
    }

    void a_number_that_no_longer_decodes_ends_on_the_part_number_screen_with_the_units_saved() {
        Measurement screen("US");
        screen.state.bearing.partNumber = "K1";
        screen.click(forms::kUnits, "Option2");
        screen.click(forms::kUnits, "Command1");
        QCOMPARE(screen.lastMessage().title, std::string("Part Number too short"));
        QCOMPARE(screen.inFront(), std::string(forms::kPartNumber));
        QVERIFY(screen.files.read("SETTINGS.INI").ends_with("METRIC\r\n"));
        screen.click(forms::kPartNumber, "Command3");
        QCOMPARE(screen.inFront(), std::string(forms::kMainMenu));
    }
};

QTEST_MAIN(MeasurementTest)
#include "MeasurementTest.moc"
