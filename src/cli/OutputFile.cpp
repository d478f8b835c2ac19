#include "cli/OutputFile.h"

#include <array>
#include <exception>

#include <dlfcn.h>

#include "cli/CommandError.h"
#include "cli/InOwnProcess.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "paint/PictureModule.h"
#include "state/WholeFile.h"

namespace norlaplan::cli {
namespace {

std::filesystem::path pictureModule() {
    const std::filesystem::path programs = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    const std::filesystem::path installed = programs / kInstalledModules / kPictureModule;
    return std::filesystem::exists(installed) ? installed : programs / kPictureModule;
}

/// The picture module brings Qt with it, so it is loaded for a picture alone.
SavePictureEntry loadPictureModule() {
    const std::filesystem::path module = pictureModule();
    void* const handle = ::dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const entry = handle == nullptr ? nullptr : ::dlsym(handle, kPictureEntry);
    if (entry == nullptr) {
        const char* const reason = ::dlerror();
        throw CommandError(ErrorKind::Message, "No picture",
                           "Pictures need the module " + module.string() + ", which can't be loaded (" +
                               (reason == nullptr ? "no reason is told" : reason) + ")");
    }
    return reinterpret_cast<SavePictureEntry>(entry);
}

/// The drawing with the exception that it may have ended in: none may cross into the module.
struct Task {
    const Drawing& drawing;
    std::exception_ptr failure;
};

bool drawInto(void* context, Canvas& canvas) {
    auto& task = *static_cast<Task*>(context);
    try {
        task.drawing.draw(canvas);
        return true;
    } catch (...) {
        task.failure = std::current_exception();
        return false;
    }
}

void writePicture(const Drawing& drawing, const std::filesystem::path& output) {
    const SavePictureEntry save = loadPictureModule();
    Task task{drawing, nullptr};
    std::array<char, 500> text{};
    const int fault = save(output.c_str(), drawing.paper, &drawInto, &task, text.data(), text.size());
    if (task.failure) std::rethrow_exception(task.failure);
    if (fault != 0) throw RuntimeError(fault, text.data());
}

}  // namespace

const char* extensionsOf(OutputKinds kinds) {
    return kinds == OutputKinds::Pictures ? ".pdf, .png or .bmp" : ".rtf, .pdf, .png or .bmp";
}

void requireOutputKind(const std::filesystem::path& output, OutputKinds kinds) {
    const std::string extension = lowerCase(output.extension().string());
    const bool picture = extension == ".pdf" || extension == ".png" || extension == ".bmp";
    if (picture || (extension == ".rtf" && kinds == OutputKinds::RtfAndPictures)) return;
    throw CommandError(ErrorKind::Usage, "Unknown format",
                       std::string("--output takes a file name that ends in ") + extensionsOf(kinds));
}

CommandResult writeDocument(const Document& document, const std::filesystem::path& output) {
    const std::string extension = lowerCase(output.extension().string());
    if (extension == ".rtf") {
        writeWholeFile(output, document.rtf());
    } else if (extension == ".pdf") {
        inOwnProcess([&] { writePicture(document.pages, output); });
    } else {
        inOwnProcess([&] { writePicture(document.image(), output); });
    }
    return {{{"file", output.string()}}, output.string() + "\n"};
}

}  // namespace norlaplan::cli
