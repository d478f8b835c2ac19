#pragma once

#include "screens/Services.h"
#include "screens/platform/QtPorts.h"

namespace norlaplan {

/// The ports of the real program, on Qt and the desktop.
class QtServices {
  public:
    QtServices(ProgramState& state, const ProgramFolder& folder)
        : sheets_(folder), services_{state,       folder,  messages_,  saveDialog_, printer_,
                                     clock_,      sheets_, userFiles_, desktop_,    colourDialog_,
                                     openDialog_, mail_,   office_} {}
    QtServices(const QtServices&) = delete;
    QtServices& operator=(const QtServices&) = delete;

    const Services& services() const { return services_; }

  private:
    QtMessages messages_;
    QtSaveDialog saveDialog_;
    QtDesktop desktop_;
    QtPrinter printer_{saveDialog_, desktop_};
    LocalClock clock_;
    FolderSheets sheets_;
    UserFiles userFiles_{UserFiles::usualFolder()};
    QtColourDialog colourDialog_;
    QtOpenDialog openDialog_;
    DesktopMail mail_;
    DesktopOffice office_;
    Services services_;
};

}  // namespace norlaplan
