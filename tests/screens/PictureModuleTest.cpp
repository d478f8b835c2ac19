#include <QtTest>

#include <dlfcn.h>

#include "numbers/RuntimeError.h"
#include "paint/PictureModule.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

using namespace norlaplan;
using namespace norlaplan::testing;

/// The module as the command line uses it: in a program without an application object.
class PictureModuleTest : public QObject {
    Q_OBJECT

  private:
    static SavePictureEntry entry() {
        const std::string file = (programFolder() / kPictureModule).string();
        void* const module = dlopen(file.c_str(), RTLD_NOW);
        return module == nullptr ? nullptr : reinterpret_cast<SavePictureEntry>(dlsym(module, kPictureEntry));
    }
    static bool drawText(void* text, Canvas& canvas) {
        canvas.text({1.0, 10.0, 4.0, 9.0}, *static_cast<std::string*>(text), {});
        return true;
    }
    [[noreturn]] static bool failToDraw(void*, Canvas&) { raise(fault::kOverflow); }
    static bool drawHalf(void* text, Canvas& canvas) { return !drawText(text, canvas); }

  private slots:
    void it_saves_pictures_one_after_the_other() {
        const SavePictureEntry save = entry();
        QVERIFY(save != nullptr);
        const TemporaryFolder files;
        std::string words = "Ø 7.4803";
        char text[200] = "";
        for (const char* const name : {"sheet.pdf", "sheet.png", "sheet.bmp"}) {
            const std::string path = (files.path() / name).string();
            QCOMPARE(save(path.c_str(), papers::kLetter, &drawText, &words, text, sizeof text), 0);
        }
        QVERIFY(files.read("sheet.pdf").starts_with("%PDF"));
        QVERIFY(files.read("sheet.png").starts_with("\x89PNG"));
        QVERIFY(files.read("sheet.bmp").starts_with("BM"));
    }

    void a_drawing_that_is_not_whole_leaves_the_old_file_alone() {
        const SavePictureEntry save = entry();
        QVERIFY(save != nullptr);
        const TemporaryFolder files;
        std::string words = "half";
        char text[200] = "";
        for (const char* const name : {"sheet.pdf", "sheet.png"}) {
            files.write(name, "old");
            const std::string path = (files.path() / name).string();
            QVERIFY(save(path.c_str(), papers::kLetter, &drawHalf, &words, text, sizeof text) != 0);
            QCOMPARE(files.read(name), std::string("old"));
        }
    }

    void a_failure_comes_back_as_its_number_and_text() {
        const SavePictureEntry save = entry();
        QVERIFY(save != nullptr);
        const TemporaryFolder files;
        char text[200] = "";
        const std::string path = (files.path() / "sheet.pdf").string();
        QCOMPARE(save(path.c_str(), papers::kLetter, &failToDraw, nullptr, text, sizeof text),
                 fault::kOverflow);
        QCOMPARE(std::string(text), std::string("Overflow"));
        QVERIFY(!std::filesystem::exists(path));
        char few[5] = "";
        QCOMPARE(save(path.c_str(), papers::kLetter, &failToDraw, nullptr, few, sizeof few),
                 fault::kOverflow);
        QCOMPARE(std::string(few), std::string("Over"));
    }
};

QTEST_APPLESS_MAIN(PictureModuleTest)
#include "PictureModuleTest.moc"
