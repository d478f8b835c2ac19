#include "screens/platform/QtPorts.h"
#include "state/WholeFile.h"

namespace norlaplan {

void FolderSheets::store(const SheetFiles& sheet) {
    StagedFile document(folder_.find("DATA.RTF"), sheet.rtf);
    StagedFile records(folder_.find("CONDENSED.DAT"), sheet.records);
    document.commit();
    records.commit();
}

}  // namespace norlaplan
