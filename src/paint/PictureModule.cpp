#include "paint/PictureModule.h"

#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "numbers/RuntimeError.h"
#include "paint/NoRuntimeFolder.h"
#include "paint/PictureFile.h"

namespace norlaplan {
namespace {

constexpr int kNoNumber = -1;

void putText(std::string_view from, char* text, std::size_t size) {
    if (size == 0) return;
    const std::size_t length = std::min(from.size(), size - 1);
    std::memcpy(text, from.data(), length);
    text[length] = '\0';
}

/// Fonts and painters need an application object; this one works without a display.
class HeadlessApplication {
  public:
    HeadlessApplication() {
        // What Qt finds worth a remark is no message for the user.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        if (QCoreApplication::instance() != nullptr) return;
        const NoRuntimeFolder starting;
        application_ = std::make_unique<QGuiApplication>(count_, arguments_.data());
    }
    ~HeadlessApplication() { qInstallMessageHandler(nullptr); }
    HeadlessApplication(const HeadlessApplication&) = delete;
    HeadlessApplication& operator=(const HeadlessApplication&) = delete;

  private:
    char name_[10] = "norlaplan";
    char option_[10] = "-platform";
    char platform_[10] = "offscreen";
    std::array<char*, 4> arguments_ = {name_, option_, platform_, nullptr};
    int count_ = 3;
    std::unique_ptr<QGuiApplication> application_;
};

}  // namespace
}  // namespace norlaplan

extern "C" __attribute__((visibility("default"))) int norlaplanSavePicture(
    const char* path, const norlaplan::Paper& paper, bool (*draw)(void* context, norlaplan::Canvas& canvas),
    void* context, char* text, std::size_t size) {
    using namespace norlaplan;
    try {
        const HeadlessApplication application;
        savePicture(path, {paper, [&](Canvas& canvas) {
                               if (!draw(context, canvas))
                                   throw std::runtime_error("the drawing is not whole");
                           }});
        return 0;
    } catch (const RuntimeError& error) {
        putText(error.what(), text, size);
        return error.number();
    } catch (const std::exception& error) {
        putText(error.what(), text, size);
        return kNoNumber;
    }
}
