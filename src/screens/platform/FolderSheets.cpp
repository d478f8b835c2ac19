#include "screens/platform/QtPorts.h"
#include "state/StagedFile.h"

namespace norlaplan {

void FolderSheets::store(const SheetFiles& sheet) {
    StagedFile document(folder_.toWrite("DATA.RTF"), sheet.rtf);
    StagedFile records(folder_.toWrite("CONDENSED.DAT"), sheet.records);
    commitTogether(document, records);
}

}  // namespace norlaplan
