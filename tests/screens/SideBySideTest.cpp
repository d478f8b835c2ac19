#include <QProcess>
#include <iostream>
#include <map>
#include <set>

#include "screens/Program.h"
#include "state/Settings.h"

namespace norlaplan::testing {
namespace {

constexpr int kRounds = 5;
constexpr const char* kWork = "--work";

/// What the user of one of the programs works with; the first of the texts is the user's name.
struct Work {
    const char *user, *units;
    std::vector<const char*> numbers;
};
const Work kWorks[] = {{"Ann", "US", {"K19013XP0", "K20013XP0", "K19013XP0A"}},
                       {"Beatrice", "METRIC", {"K19013XP0", "K10008XP0"}}};

/// One of the programs, in a process of its own: it decodes, looks, prints and saves, and tells what is not
/// its own.
class Worker {
  public:
    Worker(const Work& work, const std::filesystem::path& shared) : work_(work), shared_(shared) {
        for (Program* const program : {&alone_, &mine_})
            program->useUnits(work.units);
        for (const char* const number : work.numbers)
            expected_[number] = sheetSavedBy(alone_, number, alone_.files.path());
        mine_.folder = ProgramFolder(shared);
    }

    /// The number of complaints.
    int run() {
        for (int round = 0; round < kRounds; ++round) {
            for (const char* const number : work_.numbers) {
                expect(sheetSavedBy(mine_, number, shared_) == expected_.at(number), number, "saved");
                expect(printsOnly(number), number, "printed");
                expect(saveUser(), number, "settings");
                for (const Message& message : mine_.messages.shown)
                    expect(false, number, (message.title + ": " + message.prompt).c_str());
                mine_.messages.shown.clear();
            }
        }
        return complaints_;
    }

  private:
    void expect(bool good, const char* number, const char* what) {
        if (good) return;
        ++complaints_;
        std::cout << work_.user << ", " << number << ": " << what << std::endl;
    }

    std::string sheetSavedBy(Program& program, const char* number, const std::filesystem::path& folder) {
        const std::string name = std::string(work_.user) + number + ".rtf";
        program.saveDialog.choice = SaveChoice{folder / name, 1};
        program.enterNumber(number);
        program.click(forms::kMainMenu, "Command9");
        program.click(forms::kDataSheet, "Command3");
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// Whether the sheet on paper has this bearing's title and no other's.
    bool printsOnly(const std::string& number) {
        mine_.printer.canvas.texts.clear();
        mine_.enterNumber(number.c_str());
        mine_.click(forms::kMainMenu, "Command9");
        mine_.click(forms::kDataSheet, "Command4");
        std::set<std::string> titles;
        for (const auto& drawn : mine_.printer.canvas.texts) {
            for (const Work& work : kWorks) {
                for (const char* const known : work.numbers) {
                    if (drawn.text == known) titles.insert(known);
                }
            }
        }
        return titles == std::set<std::string>{number};
    }

    /// Saves the user's name. Whether the file then is a whole one, of this program or of the other.
    bool saveUser() {
        mine_.screens.showAlone(forms::kMainMenu);
        mine_.screens.show(forms::kUserInfo);
        mine_.type(forms::kUserInfo, "Text1", work_.user);
        mine_.click(forms::kUserInfo, "Command1");
        ProgramState read;
        LoadSettings(read, mine_.folder);
        return (read.user.userName == kWorks[0].user || read.user.userName == kWorks[1].user) &&
               (read.unitSystem == "US" || read.unitSystem == "METRIC");
    }

    const Work& work_;
    const std::filesystem::path shared_;
    Program alone_, mine_;
    std::map<std::string, std::string> expected_;
    int complaints_ = 0;
};

class SideBySideTest : public QObject {
    Q_OBJECT

  private slots:
    void two_programs_in_one_folder_save_and_print_each_their_own_and_whole() {
        const Program folder;
        QProcess programs[std::size(kWorks)];
        for (std::size_t i = 0; i < std::size(kWorks); ++i) {
            programs[i].setProcessChannelMode(QProcess::ForwardedErrorChannel);
            programs[i].start(
                QCoreApplication::applicationFilePath(),
                {kWork, QString::number(i), QString::fromStdString(folder.files.path().string())});
        }
        for (QProcess& program : programs)
            program.waitForFinished(120'000);
        for (QProcess& program : programs) {
            QCOMPARE(QString::fromUtf8(program.readAllStandardOutput()), QString());
            QVERIFY(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0);
        }
        std::set<std::string> expected = {"SETTINGS.INI", "CONDENSED.DAT"}, left;
        for (const Work& work : kWorks) {
            for (const char* const number : work.numbers)
                expected.insert(std::string(work.user) + number + ".rtf");
        }
        for (const auto& entry : std::filesystem::directory_iterator(folder.files.path())) {
            if (!entry.is_symlink()) left.insert(entry.path().filename().string());
        }
        // The sheet was printed after it was saved, so that one may stand there.
        left.erase("DATA.RTF");
        QVERIFY2(left == expected, "a file is missing or left over");
    }
};

}  // namespace
}  // namespace norlaplan::testing

int main(int count, char** words) {
    using namespace norlaplan::testing;
    QApplication application(count, words);
    if (count == 4 && std::string(words[1]) == kWork)
        return Worker(kWorks[std::stoul(words[2])], words[3]).run() == 0 ? 0 : 1;
    SideBySideTest test;
    return QTest::qExec(&test, count, words);
}

#include "SideBySideTest.moc"
