#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "numbers/RuntimeError.h"
#include "paint/AloneWithTheModule.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {

SavePictureEntry moduleEntry() {
    const std::string file = (programFolder() / kPictureModule).string();
    void* const module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    return module == nullptr ? nullptr : reinterpret_cast<SavePictureEntry>(dlsym(module, kPictureEntry));
}

int saveAlone(const char* file) {
    const auto draw = [](void*, Canvas& canvas) {
        canvas.text({1.0, 10.0, 4.0, 9.0}, "Ø 7.4803", {});
        return true;
    };
    char text[200] = "";
    return moduleEntry()(file, papers::kLetter, draw, nullptr, text, sizeof text);
}

namespace {

bool drawText(void* text, Canvas& canvas) {
    canvas.text({1.0, 10.0, 4.0, 9.0}, *static_cast<std::string*>(text), {});
    return true;
}
[[noreturn]] bool failToDraw(void*, Canvas&) {
    raise(fault::kOverflow);
}
bool drawHalf(void* text, Canvas& canvas) {
    return !drawText(text, canvas);
}

/// What is drawn and where to.
class PictureModule : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(save, nullptr); }
    std::string pathOf(const char* name) const { return (files.path() / name).string(); }

    const SavePictureEntry save = moduleEntry();
    const TemporaryFolder files;
    std::string words = "Ø 7.4803";
    char text[200] = "as before";
};

TEST_F(PictureModule, SavesPicturesOneAfterTheOther) {
    for (const auto& [name, start] :
         {std::pair{"sheet.pdf", "%PDF"}, std::pair{"sheet.png", "\x89PNG"}, std::pair{"sheet.bmp", "BM"}}) {
        EXPECT_EQ(save(pathOf(name).c_str(), papers::kLetter, &drawText, &words, text, sizeof text), 0);
        EXPECT_TRUE(files.read(name).starts_with(start)) << name;
    }
    EXPECT_STREQ(text, "as before");
}

TEST_F(PictureModule, LeavesTheOldFileAloneWhenTheDrawingIsNotWhole) {
    for (const char* const name : {"sheet.pdf", "sheet.png"}) {
        files.write(name, "old");
        EXPECT_EQ(save(pathOf(name).c_str(), papers::kLetter, &drawHalf, &words, text, sizeof text), -1);
        EXPECT_STREQ(text, "the drawing is not whole");
        EXPECT_EQ(files.read(name), "old");
    }
}

TEST_F(PictureModule, TellsAFailureByItsNumberAndItsText) {
    const std::string path = pathOf("sheet.pdf");
    EXPECT_EQ(save(path.c_str(), papers::kLetter, &failToDraw, nullptr, text, sizeof text), fault::kOverflow);
    EXPECT_STREQ(text, "Overflow");
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(PictureModule, CutsATextToTheRoomThatThereIsForIt) {
    const std::string path = pathOf("sheet.pdf");
    // Eight letters and the end of the text.
    for (const auto& [room, told] :
         {std::pair{9, "Overflow"}, std::pair{8, "Overflo"}, std::pair{5, "Over"}, std::pair{1, ""}}) {
        std::string block(10, '#');
        save(path.c_str(), papers::kLetter, &failToDraw, nullptr, block.data(),
             static_cast<std::size_t>(room));
        EXPECT_STREQ(block.c_str(), told);
        EXPECT_EQ(block.substr(static_cast<std::size_t>(room)),
                  std::string(10U - static_cast<std::size_t>(room), '#'));
    }
    save(path.c_str(), papers::kLetter, &failToDraw, nullptr, text, 0);
    EXPECT_STREQ(text, "as before");
}

TEST_F(PictureModule, NeedsNoApplicationAndNoDisplayAndLeavesNothingButTheFile) {
    QProcess alone;
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
        bare.remove(QLatin1String(name));
    const TemporaryFolder temporary;
    bare.insert(QStringLiteral("TMPDIR"), QString::fromStdString(temporary.path().string()));
    alone.setProcessEnvironment(bare);
    for (const char* const name : {"sheet.pdf", "sheet.png"}) {
        alone.start(QCoreApplication::applicationFilePath(),
                    {QString::fromLatin1(kSaveAlone), QString::fromStdString(pathOf(name))});
        ASSERT_TRUE(alone.waitForFinished(60000));
        EXPECT_EQ(alone.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(alone.exitCode(), 0);
        EXPECT_EQ(alone.readAllStandardOutput() + alone.readAllStandardError(), "");
        EXPECT_TRUE(std::filesystem::exists(pathOf(name)));
    }
    EXPECT_TRUE(std::filesystem::is_empty(temporary.path()));
}

}  // namespace
}  // namespace norlaplan::testing
