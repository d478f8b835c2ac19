// What the program takes to the first paint of its start screen. The folder of the program is the argument.
#include <memory>

#include "PaintWatch.h"
#include "screens/Form1.h"
#include "screens/FormRegistry.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "screens/platform/QtServices.h"

int main(int count, char** arguments) {
    using namespace norlaplan;
    if (count < 2) return 2;
    const QApplication application(count, arguments);
    theme::apply();
    ProgramState state;
    const ProgramFolder folder(arguments[1]);
    const QtServices ports(state, folder);
    Screens screens(ports.services());
    addForms(screens);
    const PaintWatch watch;
    ShowStartScreen(screens);
    return QApplication::exec();
}
