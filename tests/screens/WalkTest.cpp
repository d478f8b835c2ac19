#include <deque>
#include <memory>

#include "screens/Information.h"
#include "screens/WalkCheck.h"
#include "screens/WalkingUser.h"

namespace norlaplan::testing {
namespace {

constexpr std::size_t kToldSteps = 40;

unsigned long fromEnvironment(const char* name, unsigned long otherwise) {
    bool number = false;
    const unsigned long value = qEnvironmentVariable(name).toULong(&number);
    return number ? value : otherwise;
}

/// Walks through the program at random. After every step, whatever the form in front shows is what the same
/// number and loads give a program that has done nothing before.
class WalkTest : public QObject {
    Q_OBJECT

  private slots:
    void showsNothingThatAFreshDecodeAndSolveWouldNot() {
        const unsigned long seed = fromEnvironment("NORLAPLAN_WALK_SEED", 1);
        const unsigned long steps = fromEnvironment("NORLAPLAN_WALK_STEPS", 2000);
        std::mt19937_64 chance(seed);
        Afresh afresh;
        std::deque<std::string> told;
        unsigned long done = 0;
        while (done < steps) {
            // Quitting ends a run of the program, and the next one begins.
            Program program;
            program.useUnits(chance() % 2 == 0 ? "US" : "METRIC");
            Options& options = program.state.options;
            options.ballShowOption = options.lubeFilmOption = options.pathStressOption = true;
            options.samLundOption = options.nedGroveOption = true;
            giveInformation(program);
            WalkingUser user(program, chance);
            WalkCheck check(program, afresh);
            program.screens.showAlone(forms::kMainMenu);
            told.push_back("starts in " + program.state.unitSystem);
            for (; done < steps && program.screens.current() != nullptr; ++done) {
                check.before();
                told.push_back(user.step());
                for (const Message& message : program.messages.shown)
                    told.back() += "  [" + message.title + ": " + message.prompt + "]";
                if (told.size() > kToldSteps) told.pop_front();
                if (program.screens.current() == nullptr) continue;
                if (const std::string wrong = check.after(); !wrong.empty()) {
                    const std::string report = "seed " + std::to_string(seed) + ", step " +
                                               std::to_string(done) + ": " + wrong + lines(told);
                    QFAIL(report.c_str());
                }
            }
        }
    }

  private:
    static std::string lines(const std::deque<std::string>& told) {
        std::string all;
        for (const std::string& line : told)
            all += "\n    " + line;
        return all;
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::WalkTest)
#include "WalkTest.moc"
