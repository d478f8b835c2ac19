#include "screens/Form8.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/OfficeNote.h"
#include "screens/Screens.h"

namespace norlaplan {
namespace {

constexpr const char* kWorkbook = "\\training\\Metric Bearings.xls";

/// Whether the office program itself failed, and not the file.
bool isLinkFault(const RuntimeError& failure) {
    return failure.number() == fault::kNoSuchProgram || failure.number() == fault::kAutomation ||
           failure.number() == fault::kNoOfficeLink;
}

}  // namespace

Form8::Form8(Screens& screens) : Form(screens, forms::kProductTable, "") {
    note_ = new OfficeNote("OLE1", "Tables of the metric series",
                           "The workbook is open in the spreadsheet of your office program, in a window of "
                           "its own. Close it there when you are done; this window may be left at any time.");
    auto* const again = button("OpenAgain", "Open Again", "Open the workbook once more", [this] { link(); });
    return_ =
        button("Return", "Return", "Go back to the product line", [this] { this->screens().hide(*this); });
    page().addWidget(note_, 1);
    setFooter({.previous = return_, .others = {again}});
}

void Form8::opened() {
    note_->showFile(services().folder.find(kWorkbook));
    return_->setFocus();
}

void Form8::openWorkbook(const QString& caption) {
    setWindowTitle(caption);
    if (link()) screens().show(forms::kProductTable);
}

bool Form8::link() {
    try {
        services().office.open(services().folder.find(kWorkbook));
        return true;
    } catch (const RuntimeError& failure) {
        if (!isLinkFault(failure)) throw;
        services().messages.show({"Cannot Display Metric Tables", "Cannot link to Microsoft Excell"});
        return false;
    }
}

}  // namespace norlaplan
