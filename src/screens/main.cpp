#include <QApplication>

#include "screens/Form1.h"
#include "screens/FormRegistry.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "screens/platform/QtPorts.h"

int main(int count, char** arguments) {
    using namespace norlaplan;
    const QApplication application(count, arguments);
    // Forms come and go; the program ends when it says so.
    QApplication::setQuitOnLastWindowClosed(false);
    theme::apply();

    ProgramState state;
    const ProgramFolder folder(QCoreApplication::applicationDirPath().toStdString());
    QtMessages messages;
    QtSaveDialog saveDialog;
    QtDesktop desktop;
    QtPrinter printer(saveDialog, desktop);
    LocalClock clock;
    FolderSheets sheets(folder);
    UserFiles userFiles(UserFiles::usualFolder());
    QtColourDialog colourDialog;
    QtOpenDialog openDialog;
    DesktopMail mail;

    Screens screens({state, folder, messages, saveDialog, printer, clock, sheets, userFiles, desktop,
                     colourDialog, openDialog, mail});
    addForms(screens);
    ShowStartScreen(screens);
    return QApplication::exec();
}
