#include <QLabel>
#include <QPushButton>

#include "screens/Program.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// The load-life screen after a solve, with a file that its next save goes to.
struct Life : Program {
    Life() {
        useUnits("US");
        enterNumber("K19013XP0");
        openLife("500", "200");
        std::filesystem::create_directory(files.path() / "out");
    }
    std::filesystem::path saveTo(const char* name, int filter) {
        const std::filesystem::path path = files.path() / "out" / name;
        saveDialog.choice = SaveChoice{path, filter};
        click(forms::kLife, kSave);
        return path;
    }
    QWidget* line() { return screens.form(forms::kLife).findChild<QWidget*>("SavedLine"); }
    static constexpr const char* kSave = "Command4";
};

}  // namespace

/// What is said and offered once a file is saved.
class SavedLineTest : public QObject {
    Q_OBJECT

  private slots:
    void a_saved_file_is_told_with_the_ways_to_it() {
        Life program;
        QVERIFY(program.line() == nullptr || !program.line()->isVisible());
        const std::filesystem::path path = program.saveTo("life.rtf", 1);
        QVERIFY(program.line()->isVisible());
        QCOMPARE(program.control<QLabel>(forms::kLife, "SavedText").toolTip(),
                 "Saved as " + QString::fromStdString(path.string()));
        program.click(forms::kLife, "OpenSaved");
        program.click(forms::kLife, "ShowSaved");
        QCOMPARE(program.desktop.opened, (std::vector<std::filesystem::path>{path, path.parent_path()}));
        QVERIFY(program.messages.shown.empty());
    }

    void a_desktop_without_a_program_for_it_is_told() {
        Life program;
        const std::filesystem::path path = program.saveTo("life.rtf", 1);
        program.desktop.hasProgram = false;
        program.click(forms::kLife, "OpenSaved");
        QCOMPARE(program.lastMessage().title, std::string("No program found"));
        QVERIFY(program.lastMessage().prompt.ends_with(path.string()));
    }

    void a_cancelled_save_tells_nothing() {
        Life program;
        program.click(forms::kLife, Life::kSave);
        QVERIFY(program.line() == nullptr || !program.line()->isVisible());
    }

    void the_line_is_gone_when_the_form_is_opened_again() {
        Life program;
        program.saveTo("life.rtf", 1);
        program.screens.showAlone(forms::kMainMenu);
        program.click(forms::kMainMenu, "Command14");
        QCOMPARE(program.inFront(), std::string(forms::kLife));
        QVERIFY(!program.line()->isVisible());
    }

    void a_long_path_does_not_widen_the_window() {
        Life program;
        const int before = program.screens.form(forms::kLife).width();
        program.saveTo((std::string(200, 'x') + ".rtf").c_str(), 1);
        QCOMPARE(program.screens.form(forms::kLife).width(), before);
        QVERIFY(program.control<QLabel>(forms::kLife, "SavedText").text().contains(QChar(0x2026)));
    }

    void every_document_can_be_saved_as_pdf_and_png_too() {
        Life program;
        const std::filesystem::path pdf = program.saveTo("life.pdf", 2);
        const std::filesystem::path png = program.saveTo("life.png", 3);
        const auto& filters = program.saveDialog.requests.at(0).filters;
        QCOMPARE(filters.size(), std::size_t(3));
        QCOMPARE(filters[1].pattern, std::string("*.pdf"));
        QCOMPARE(filters[2].pattern, std::string("*.png"));
        QVERIFY(program.files.read(pdf.lexically_relative(program.files.path())).starts_with("%PDF"));
        QVERIFY(!QImage(QString::fromStdString(png.string())).isNull());
        QCOMPARE(program.state.lastSavedFile, png.string());
    }
};

QTEST_MAIN(SavedLineTest)
#include "SavedLineTest.moc"
