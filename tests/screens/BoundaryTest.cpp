#include "numbers/RuntimeError.h"
#include "screens/Program.h"
#include "state/Patience.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// One field that counts how often it was left.
class FieldForm : public Form {
  public:
    FieldForm(Screens& screens, int& left) : Form(screens, forms::kUnits, "") {
        auto* const field = new QLineEdit;
        page().addWidget(field);
        on(field, &QLineEdit::editingFinished, "", [&left] { ++left; });
    }
};

}  // namespace

class BoundaryTest : public QObject {
    Q_OBJECT

  private slots:
    void a_run_time_error_is_shown_with_its_number_its_text_and_the_action() {
        Program program;
        program.screens.runAction("Preload Torque", [] { raise(fault::kDivisionByZero); });
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '11'"));
        QCOMPARE(program.lastMessage().prompt, std::string("Division by zero\n\nPreload Torque"));
    }

    void a_calculation_that_does_not_converge_has_its_own_title() {
        Program program;
        program.screens.runAction("Search", [] { throw NotConverging(); });
        QCOMPARE(program.lastMessage().title, std::string("The calculation does not converge"));
    }

    void any_other_failure_is_shown_too() {
        Program program;
        program.screens.runAction("Save", [] { throw std::logic_error("something odd"); });
        QCOMPARE(program.lastMessage().prompt, std::string("something odd\n\nSave"));
        program.screens.runAction("Save", [] { throw std::bad_alloc(); });
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '7'"));
    }

    void after_a_failure_the_user_is_back_where_the_action_began() {
        Program program;
        program.blank(forms::kSizes);
        program.screens.show(forms::kMainMenu);
        program.screens.runAction("Load Input", [&] {
            program.screens.show(forms::kSizes);
            raise(fault::kOverflow);
        });
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(program.screens.form(forms::kMainMenu).isVisible());
        QVERIFY(!program.screens.form(forms::kSizes).isVisible());
    }

    void one_form_shows_at_a_time_and_hiding_it_brings_back_the_one_beneath() {
        Program program;
        program.blank(forms::kSizes);
        program.screens.show(forms::kMainMenu);
        program.screens.show(forms::kSizes);
        QVERIFY(!program.screens.form(forms::kMainMenu).isVisible());
        program.screens.form(forms::kSizes).close();
        QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        QVERIFY(program.screens.form(forms::kMainMenu).isVisible());
    }

    void a_form_stands_in_the_middle_of_the_screen_when_it_appears() {
        Program program;
        program.screens.show(forms::kUnits);
        const Form& form = program.screens.form(forms::kUnits);
        const QPoint off = form.frameGeometry().center() - form.screen()->geometry().center();
        QVERIFY(off.manhattanLength() <= 4);
    }

    void the_end_of_a_form_runs_no_action_of_the_field_that_had_the_focus() {
        int left = 0;
        {
            Program program;
            program.screens.add(forms::kUnits,
                                [&left](Screens& all) { return std::make_unique<FieldForm>(all, left); });
            program.screens.show(forms::kUnits);
            auto* const field = program.screens.form(forms::kUnits).findChild<QLineEdit*>();
            QTRY_VERIFY(field->hasFocus());
            QTest::keyClicks(field, "1");
        }
        QCOMPARE(left, 0);
    }

    void enter_presses_the_button_that_has_the_focus() {
        Program program;
        program.blank(forms::kStyle);
        program.screens.show(forms::kMainMenu);
        auto& button = program.control<QAbstractButton>(forms::kMainMenu, "Command4");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(program.inFront(), std::string(forms::kStyle));
    }
};

QTEST_MAIN(BoundaryTest)
#include "BoundaryTest.moc"
