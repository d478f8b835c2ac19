#include "screens/DocumentOutput.h"

#include "numbers/Text.h"
#include "paint/PictureFile.h"
#include "screens/BusyPointer.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

void writeBitmap(const Document& document, const std::filesystem::path& path) {
    if (document.pictureArea)
        saveBitmap(path, document.image(), *document.pictureArea);
    else
        saveBitmap(path, document.image());
}

}  // namespace

void printDocument(const Services& services, const Document& document) {
    services.printer.print(document.title, document.pages);
}

void saveDocument(const Services& services, const Document& document, const RtfSaver& saveRtf) {
    const SaveRequest request{document.saveTitle, document.filters, document.defaultExtension,
                              services.folder.find(document.folder), document.fileName};
    const std::optional<SaveChoice> choice = services.saveDialog.askWhereToSave(request);
    if (!choice) return;
    const BusyPointer busy;
    const FileFilter& kind = document.filters.at(static_cast<std::size_t>(choice->filterIndex) - 1);
    if (lowerCase(kind.pattern) == "*.bmp")
        writeBitmap(document, choice->path);
    else if (saveRtf)
        saveRtf(choice->path);
    else
        writeWholeFile(choice->path, document.rtf());
    services.state.lastSavedFile = choice->path.string();
}

}  // namespace norlaplan
