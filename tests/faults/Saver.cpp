// One kind of save, through the real forms, as often as it is asked for: "saver KIND" saves into the folder
// "out" of a program folder that it makes. Each line of its input is a save in a process of its own:
//   fault KIND AT FOLDER   with this fault (see FailingCalls.cpp) below the folder
//   limit BYTES            with a limit on the size of files
//   open                   ends before the save, with the files that the program has by then
// It prints the number of operations that were met and what was shown, then "saved", waits for an empty line,
// saves once more without a fault under the name "second", prints "alive" when that told nothing, and in the
// end "end" with the status of that process.
#include <QAction>
#include <QDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>

#include <dlfcn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "screens/Program.h"
#include "screens/SearchingUser.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

constexpr const char* kNumber = "K19013XP0";

/// The program with a way to its save: `open` comes from the main menu to the form, `save` presses the
/// button.
struct Saves {
    std::function<void()> open, save;
    const char* extension = "";
    int filter = 1;
};

class Saver {
  public:
    Saver() : printer_(preview_, desktop_), program_(&printer_) {
        std::filesystem::create_directory(folder() / "out");
    }

    void open(const std::string& kind) {
        program_.useUnits("US");
        program_.state.unitSystem = "US";
        program_.state.options.qlxOption = true;
        saves_ = ways().at(kind);
        program_.screens.showAlone(forms::kMainMenu);
        saves_.open();
    }

    void saveAs(const std::string& name) {
        const SaveChoice choice{program_.files.path() / "out" / (name + saves_.extension), saves_.filter};
        program_.saveDialog.choice = preview_.choice = choice;
        saves_.save();
        QApplication::processEvents();
    }

    /// Whether the save under another name is as good as ever.
    bool savesAgain() {
        program_.messages.shown.clear();
        program_.screens.showAlone(forms::kMainMenu);
        saves_.open();
        saveAs("second");
        return program_.messages.shown.empty() && program_.screens.current() != nullptr;
    }

    void tell() {
        for (const Message& message : program_.messages.shown) {
            std::string text = message.title + ": " + message.prompt;
            std::replace(text.begin(), text.end(), '\n', ' ');
            std::cout << "message " << text << "\n";
        }
    }

    std::filesystem::path folder() const { return program_.files.path(); }

  private:
    void press(FormName form, const char* button) { program_.click(form, button); }
    void openSheet() {
        program_.enterNumber(kNumber);
        press(forms::kMainMenu, "Command9");
    }
    void openLife() {
        program_.enterNumber(kNumber);
        program_.openLife("500", "200");
    }
    void openList() {
        if (program_.state.search.rows.empty()) {
            program_.chooseStyle(1);
            program_.enterSizes("5", "7", ".2", "1.2");
            program_.enterLoads("500");
        }
        program_.screens.show(forms::kResults);
    }
    void openGraph() {
        program_.enterNumber("K19013BP0T");
        press(forms::kMainMenu, "Command12");
        program_.type(forms::kDeflection, "Text3", "0.0010");
        press(forms::kDeflection, "Command3");
        press(forms::kDeflection, "Picture1");
        QApplication::processEvents();
    }
    void openUnits() {
        if (program_.state.bearing.partNumber.empty()) program_.enterNumber(kNumber);
        program_.screens.show(forms::kUnits);
        program_.control<QRadioButton>(forms::kUnits, "Option2").setChecked(true);
    }
    void openUser() {
        program_.screens.show(forms::kUserInfo);
        program_.type(forms::kUserInfo, "Text1", "Ann");
    }
    void openApplication() {
        press(forms::kMainMenu, "Command3");
        program_.state.application.unsaved = false;
    }
    void saveFromPreview() {
        QTimer soon;
        QObject::connect(&soon, &QTimer::timeout, [&soon] {
            auto* const preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (preview == nullptr) return;
            soon.stop();
            preview->findChild<QPushButton*>("SaveAsPdf")->click();
            preview->reject();
        });
        soon.start(1);
        press(forms::kDataSheet, "Command4");
    }

    std::map<std::string, Saves> ways() {
        const auto pressing = [this](FormName form, const char* button) {
            return [this, form, button] { press(form, button); };
        };
        const auto sheet = [this] { openSheet(); };
        return {
            {"settings", {[this] { openUser(); }, pressing(forms::kUserInfo, "Command1")}},
            {"units", {[this] { openUnits(); }, pressing(forms::kUnits, "Command1")}},
            {"number",
             {[this] { program_.enterNumber(kNumber); }, [this] { program_.enterNumber("K20013XP0"); }}},
            {"sheet", {sheet, pressing(forms::kDataSheet, "Command3"), ".rtf"}},
            {"bitmap", {sheet, pressing(forms::kDataSheet, "Command3"), ".bmp", 2}},
            {"preview", {sheet, [this] { saveFromPreview(); }, ".pdf"}},
            {"life", {[this] { openLife(); }, pressing(forms::kLife, "Command4"), ".rtf"}},
            {"list", {[this] { openList(); }, pressing(forms::kResults, "Command6"), ".rtf"}},
            {"graph", {[this] { openGraph(); }, pressing(forms::kDeflectionGraph, "Command4"), ".bmp", 2}},
            {"application",
             {[this] { openApplication(); }, pressing(forms::kApplication, "Command3"), ".rtf"}},
            {"export",
             {[this] { program_.enterNumber(kNumber); },
              [this] { program_.control<QAction>(forms::kMainMenu, "makeqlx").trigger(); }, ".qlx"}},
        };
    }

    PresetSaveDialog preview_;
    RecordingDesktop desktop_;
    QtPrinter printer_;
    SearchingUser program_;
    Saves saves_;
};

template <typename Function>
Function& preloaded(const char* name) {
    void* const found = ::dlsym(RTLD_DEFAULT, name);
    if (found == nullptr) throw std::runtime_error("the failing calls aren't preloaded");
    return *reinterpret_cast<Function*>(found);
}

void planFault(const std::string& folder, const std::string& kind, long at) {
    preloaded<void(const char*, const char*, long)>("planFault")(folder.c_str(), kind.c_str(), at);
}

long operationsSeen() {
    return preloaded<long()>("operationsSeen")();
}

void limitFiles(rlim_t bytes) {
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/// The process of one line.
int saveOnce(Saver& saver, const std::string& way, const std::string& line) {
    std::istringstream words(line);
    std::string what, kind, folder;
    long number = 0;
    words >> what;
    saver.open(way);
    if (what == "open") return 0;
    if (what == "limit") {
        words >> number;
        limitFiles(static_cast<rlim_t>(number));
    } else {
        words >> kind >> number >> folder;
        planFault(folder, kind, number);
    }
    saver.saveAs("first");
    std::cout << "operations " << operationsSeen() << "\n";
    planFault("", "none", 0);
    limitFiles(RLIM_INFINITY);
    saver.tell();
    std::cout << "saved" << std::endl;
    std::string go;
    std::getline(std::cin, go);
    if (saver.savesAgain()) std::cout << "alive" << std::endl;
    saver.tell();
    std::cout.flush();
    return 0;
}

}  // namespace

int main(int count, char** words) {
    if (count != 2) return 2;
    QApplication application(count, words);
    Saver saver;
    std::cout << "folder " << saver.folder().string() << std::endl;
    std::string line;
    while (std::getline(std::cin, line)) {
        // Nothing has been drawn yet: the threads that Qt draws with would be missing in the new process.
        const pid_t process = ::fork();
        if (process == 0) ::_exit(saveOnce(saver, words[1], line));
        int status = 0;
        ::waitpid(process, &status, 0);
        std::cout << "end " << status << std::endl;
    }
    return 0;
}
