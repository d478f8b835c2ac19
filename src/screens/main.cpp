#include <QApplication>
#include <cstdio>
#include <optional>

#include "paint/NoRuntimeFolder.h"
#include "screens/Form1.h"
#include "screens/FormRegistry.h"
#include "screens/Screens.h"
#include "screens/StartOptions.h"
#include "screens/Theme.h"
#include "screens/platform/QtServices.h"
#include "state/StandardFiles.h"

int main(int count, char** arguments) {
    using namespace norlaplan;
    holdClosedStandardFiles();
    nameProgram();
    if (asksForText(count, arguments)) {
        const QCoreApplication application(count, arguments);
        printText();
    }
    std::optional<NoRuntimeFolder> starting(std::in_place);
    const QApplication application(count, arguments);
    starting.reset();
    const StartOptions options = readStartOptions(QCoreApplication::arguments());
    if (!options.fault.isEmpty()) {
        std::fprintf(stderr, "norlaplan: %s\n", qPrintable(options.fault));
        return 2;
    }
    // Forms come and go; the program ends when it says so.
    QApplication::setQuitOnLastWindowClosed(false);
    theme::apply();

    ProgramState state;
    const ProgramFolder folder = options.folder();
    const QtServices ports(state, folder);
    Screens screens(ports.services());
    addForms(screens);
    ShowStartScreen(screens);
    return QApplication::exec();
}
