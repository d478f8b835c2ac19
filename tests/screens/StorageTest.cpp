#include <algorithm>

#include "numbers/RuntimeError.h"
#include "screens/Program.h"
#include "state/NumberHistory.h"
#include "support/DiskTroubles.h"

namespace norlaplan::testing {
namespace {

/// What the program does when it can't write, by the controls that a user works with.
class StorageTest : public QObject {
    Q_OBJECT

  private:
    static std::vector<std::string> filesOf(const Program& program) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(program.files.path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    template <typename Trouble>
    static void refusesTheSheet(const Message& told) {
        Program program;
        program.enterNumber("K19013XP0");
        const std::string document = program.files.read("DATA.RTF");
        const std::string records = program.files.read("CONDENSED.DAT");
        const auto files = filesOf(program);
        {
            const Trouble trouble(program.files.path());
            program.enterNumber("K20013XP0");
            QCOMPARE(program.lastMessage().title, told.title);
            const std::string prompt = told.prompt + ": " + (program.files.path() / "DATA.RTF").string();
            QCOMPARE(program.lastMessage().prompt, prompt);
            QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
            // No sheet of another bearing shows under the new number.
            program.click(forms::kMainMenu, "Command9");
            QCOMPARE(program.lastMessage().title, std::string("Missing Part Number"));
        }
        QCOMPARE(program.files.read("DATA.RTF"), document);
        QCOMPARE(program.files.read("CONDENSED.DAT"), records);
        QCOMPARE(filesOf(program), files);
        // Once there is room again the same number goes through.
        program.messages.shown.clear();
        program.enterNumber("K20013XP0");
        QVERIFY(program.messages.shown.empty());
        QVERIFY(program.files.read("CONDENSED.DAT").find("K20013XP0") != std::string::npos);
    }

  private slots:
    void aFullDiskKeepsTheOldSheetAndTheNewBearingOut() {
        refusesTheSheet<FullDisk>({"Please contact Varden with 61", "Disk full"});
    }

    void aReadOnlyProgramFolderKeepsTheOldSheetAndTheNewBearingOut() {
        refusesTheSheet<ReadOnlyFolder>({"Please contact Varden with 70", "Permission denied"});
    }

    void anInstalledProgramKeepsTheSheetInItsUsersFolder() {
        const TemporaryFolder place;
        place.write("shared/DATA.RTF", "old");
        const ProgramFolder folder(place.path() / "own", place.path() / "shared");
        FolderSheets(folder).store({"document", "records"});
        QCOMPARE(place.read("own/DATA.RTF"), std::string("document"));
        QCOMPARE(place.read("own/CONDENSED.DAT"), std::string("records"));
        QCOMPARE(place.read("shared/DATA.RTF"), std::string("old"));
    }

    void theUsersOwnTextsAreKeptInAFolderThatIsMadeForThem() {
        const TemporaryFolder home;
        const std::filesystem::path folder = home.path() / "new" / "folder";
        UserFiles files(folder);
        rememberNumber(files, "K19013XP0");
        rememberNumber(files, "K10008XP0");
        UserFiles later(folder);
        QCOMPARE(enteredNumbers(later), (std::vector<std::string>{"K10008XP0", "K19013XP0"}));
    }

    void theUsersOwnTextsStayWholeOnAFullDisk() {
        const TemporaryFolder home;
        UserFiles files(home.path());
        files.write("notes", "old");
        {
            const FullDisk disk(home.path());
            QVERIFY_THROWS_EXCEPTION(RuntimeError, files.write("notes", std::string(2000, 'x')));
        }
        QCOMPARE(files.read("notes"), std::string("old"));
        QCOMPARE(std::distance(std::filesystem::directory_iterator(home.path()), {}), 1);
    }

    void whatIsNoFileOfTheUsersOwnHoldsNoNumbers() {
        const TemporaryFolder home;
        UserFiles files(home.path());
        rememberNumber(files, "K19013XP0");
        const std::filesystem::path file = std::filesystem::directory_iterator(home.path())->path();
        std::filesystem::resize_file(file, 5'000'000);
        QVERIFY(enteredNumbers(files).empty());
        std::filesystem::remove(file);
        std::filesystem::create_directory(file);
        QVERIFY(enteredNumbers(files).empty());
        rememberNumber(files, "K19013XP0");
        QVERIFY(std::filesystem::is_directory(file));
        // A file where the folder should be.
        UserFiles blocked("/dev/null/folder");
        rememberNumber(blocked, "K19013XP0");
        QVERIFY(enteredNumbers(blocked).empty());
    }

    void theUsersFolderFollowsTheDesktopsSetting() {
        const TemporaryFolder home;
        qputenv("XDG_CONFIG_HOME", home.path().c_str());
        const std::filesystem::path folder = UserFiles::usualFolder();
        qunsetenv("XDG_CONFIG_HOME");
        QCOMPARE(folder.parent_path(), home.path());
    }

    void everySaveOntoAFullDiskLeavesWhatStoodThere_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("filter");
        QTest::newRow("life report") << "Form19"
                                     << "Command4" << 1;
        QTest::newRow("data sheet as a picture") << "Form17"
                                                 << "Command3" << 2;
    }
    void everySaveOntoAFullDiskLeavesWhatStoodThere() {
        QFETCH(QString, form);
        QFETCH(QString, button);
        QFETCH(int, filter);
        Program program;
        program.enterNumber("K19013XP0");
        if (form == "Form19")
            program.openLife("500");
        else
            program.click(forms::kMainMenu, "Command9");
        program.files.write("mine", "old");
        const auto files = filesOf(program);
        program.saveDialog.choice = SaveChoice{program.files.path() / "mine", filter};
        {
            const FullDisk disk(program.files.path());
            program.click(form.toStdString(), qPrintable(button));
        }
        QCOMPARE(program.lastMessage().title, std::string("Run-time error '61'"));
        QVERIFY(program.lastMessage().prompt.starts_with("Disk full"));
        QCOMPARE(program.inFront(), form.toStdString());
        QCOMPARE(program.files.read("mine"), std::string("old"));
        QCOMPARE(filesOf(program), files);
        QVERIFY(program.state.lastSavedFile.empty());
    }
};

}  // namespace
}  // namespace norlaplan::testing

using norlaplan::testing::StorageTest;
QTEST_MAIN(StorageTest)
#include "StorageTest.moc"
