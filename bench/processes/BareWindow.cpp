// What Qt alone takes to the first paint of a window with twelve fields.
#include <QFormLayout>
#include <QLineEdit>

#include "PaintWatch.h"

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    QWidget window;
    auto* const layout = new QFormLayout(&window);
    for (int i = 1; i <= 12; ++i)
        layout->addRow(QStringLiteral("Field %1").arg(i), new QLineEdit);
    const PaintWatch watch;
    window.show();
    return QApplication::exec();
}
