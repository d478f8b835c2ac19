#include "screens/form5.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/OfficeNote.h"
#include "screens/Screens.h"
#include "screens/Training.h"

namespace norlaplan {

form5::form5(Screens& screens) : Form(screens, forms::kTrainingShow, "") {
    note_ = new OfficeNote("OLE1", "Bearing training",
                           "The slide show is coming up in your office program and takes the whole screen. "
                           "The space bar leads on, Escape ends it. You may go on with your work here "
                           "meanwhile; this window closes by itself when the show is over.");
    menu_ = button("MainMenu", "&Main Menu", "Return to Main Menu; the show goes on",
                   [this] { this->screens().hide(*this); });
    page().addWidget(note_, 1);
    setFooter({.mainMenu = menu_});
}

void form5::opened() {
    note_->showFile(services().folder.find(Training::kShow));
    menu_->setFocus();
}

}  // namespace norlaplan
