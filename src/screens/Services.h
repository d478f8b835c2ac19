#pragma once

#include "state/ColourDialogPort.h"
#include "state/DesktopPort.h"
#include "state/OfficePort.h"
#include "state/Ports.h"
#include "state/ProgramFolder.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// What every form works with: the one record, the program folder, and the ways out to the platform.
/// Whoever makes the record (`main` or a test) keeps all of it alive for as long as there are forms.
struct Services {
    ProgramState& state;
    const ProgramFolder& folder;
    MessagePort& messages;
    SaveDialogPort& saveDialog;
    PrinterPort& printer;
    ClockPort& clock;
    SheetStorePort& sheets;
    UserFilesPort& userFiles;
    DesktopPort& desktop;
    ColourDialogPort& colourDialog;
    OpenDialogPort& openDialog;
    MailPort& mail;
    OfficePort& office;
};

}  // namespace norlaplan
