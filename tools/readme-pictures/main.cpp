#include <QDir>
#include <cstdio>
#include <functional>
#include <vector>

#include "screens/Theme.h"
#include "screens/controls/Visitor.h"

namespace norlaplan {
namespace {

using testing::Visitor;

constexpr const char* kNumber = "K19013XP0";
const QRect kRoom(0, 0, 1280, 1024);

/// A picture of README, and what a user does after the one before to see it.
struct ReadmePicture {
    const char* name;
    std::function<void(Visitor&)> go;
};

void toMenu(Visitor& user) {
    user.screens.showAlone(forms::kMainMenu);
}

void enterLoads(Visitor& user) {
    toMenu(user);
    user.press("Command13");
    const char* const loads[] = {"1200", "300", "900", "400"};
    for (int i = 0; i < 4; ++i)
        user.type(forms::kLoads, QByteArray("Text" + QByteArray::number(i + 1)).constData(), loads[i]);
    user.click(forms::kLoads, "Command1");
}

void openDeflectionGraph(Visitor& user) {
    toMenu(user);
    user.press("Command12");
    user.type(forms::kDeflection, "Text3", "0.001");
    user.click(forms::kDeflection, "Command3");
    QTest::mouseClick(&user.control<QWidget>(forms::kDeflection, "Picture1"), Qt::LeftButton);
}

/// In the order of the walk.
const std::vector<ReadmePicture>& pictures() {
    static const std::vector<ReadmePicture> kPictures = {
        {"main-menu.png", [](Visitor& user) { user.toMenu(); }},
        {"part-number.png", [](Visitor& user) { user.typeNumber(kNumber); }},
        {"data-sheet.png",
         [](Visitor& user) {
             user.decode(kNumber);
             user.press("Command9");
         }},
        {"load-life.png", enterLoads},
        {"contact-stress.png", [](Visitor& user) { user.click(forms::kLife, "Command7"); }},
        {"deflection-graph.png", openDeflectionGraph},
        {"axial-play.png",
         [](Visitor& user) {
             toMenu(user);
             user.press("Command11");
         }},
        {"style.png",
         [](Visitor& user) {
             toMenu(user);
             user.chooseStyle(2);
         }},
        {"search-results.png",
         [](Visitor& user) {
             toMenu(user);
             user.search(2, "400");
         }},
    };
    return kPictures;
}

bool save(Visitor& user, const QString& path) {
    Form& form = *user.screens.current();
    form.prepareToShow(kRoom);
    QApplication::processEvents();
    const bool saved = form.grab().save(path);
    std::fprintf(saved ? stdout : stderr, saved ? "%s\n" : "can't write %s\n", qPrintable(path));
    return saved;
}

int makeAll(const QDir& folder) {
    theme::apply();
    Visitor user("US", {"BALL SHOW", "LUBE FILM", "PATH STRESS", "TEMPFITS"});
    bool whole = true;
    for (const ReadmePicture& picture : pictures()) {
        picture.go(user);
        for (const Message& message : user.messages.shown)
            std::fprintf(stderr, "%s: %s\n", message.title.c_str(), message.prompt.c_str());
        whole = user.messages.shown.empty() && save(user, folder.filePath(picture.name)) && whole;
        user.messages.shown.clear();
    }
    return whole ? 0 : 1;
}

}  // namespace
}  // namespace norlaplan

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "usage: readme-pictures FOLDER | --list\n");
        return 2;
    }
    if (qstrcmp(arguments[1], "--list") == 0) {
        for (const norlaplan::ReadmePicture& picture : norlaplan::pictures())
            std::puts(picture.name);
        return 0;
    }
    // The same pictures on every desktop, and without one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    return norlaplan::makeAll(QDir(QString::fromLocal8Bit(arguments[1])));
}
