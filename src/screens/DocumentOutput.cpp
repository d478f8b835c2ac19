#include "screens/DocumentOutput.h"

#include "numbers/Text.h"
#include "paint/PictureFile.h"
#include "screens/BusyPointer.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

void writePicture(const Document& document, const std::filesystem::path& path, const std::string& extension) {
    if (extension == ".pdf")
        savePictureAs(path, document.pages, extension);
    else if (document.pictureArea)
        savePictureAs(path, document.image(), extension, *document.pictureArea);
    else
        savePictureAs(path, document.image(), extension);
}

/// The document's own kinds of file, and the pictures that any document can be saved as.
std::vector<FileFilter> filtersOf(const Document& document) {
    std::vector<FileFilter> filters = document.filters;
    filters.push_back({"PDF Files (*.pdf)", "*.pdf"});
    filters.push_back({"PNG Pictures (*.png)", "*.png"});
    return filters;
}

}  // namespace

void printDocument(const Services& services, const Document& document) {
    services.printer.print(document.title, document.pages);
}

std::optional<std::filesystem::path> saveDocument(const Services& services, const Document& document,
                                                  const RtfSaver& saveRtf) {
    const SaveRequest request{document.saveTitle, filtersOf(document), document.defaultExtension,
                              services.folder.toSaveIn(document.folder), document.fileName};
    const std::optional<SaveChoice> choice = services.saveDialog.askWhereToSave(request);
    if (!choice) return std::nullopt;
    const BusyPointer busy;
    const FileFilter& kind = request.filters.at(static_cast<std::size_t>(choice->filterIndex) - 1);
    const std::string extension = lowerCase(kind.pattern.substr(1));
    if (extension != ".rtf")
        writePicture(document, choice->path, extension);
    else if (saveRtf)
        saveRtf(choice->path);
    else
        writeWholeFile(choice->path, document.rtf());
    services.state.lastSavedFile = choice->path.string();
    return choice->path;
}

}  // namespace norlaplan
