#include "screens/SaveReport.h"

#include "screens/BusyPointer.h"
#include "state/WholeFile.h"

namespace norlaplan {

void saveReport(const Services& services, const std::string& title, const std::string& name,
                const std::function<std::string()>& rtf) {
    const SaveRequest request{
        title, {{"Rich Text Files (*.rtf)", "*.rtf"}}, ".rtf", services.folder.find("\\save"), name};
    const std::optional<SaveChoice> choice = services.saveDialog.askWhereToSave(request);
    if (!choice) return;
    const BusyPointer busy;
    writeWholeFile(choice->path, rtf());
    services.state.lastSavedFile = choice->path.string();
}

}  // namespace norlaplan
