#include <QApplication>
#include <QColorDialog>

#include "paint/PainterCanvas.h"
#include "screens/platform/QtPorts.h"

namespace norlaplan {

std::optional<Colour> QtColourDialog::askColour(const std::string& title, Colour now) {
    const QColor chosen =
        QColorDialog::getColor(colourOf(now), QApplication::activeWindow(), QString::fromStdString(title),
                               QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid()) return std::nullopt;
    return rgb(static_cast<unsigned>(chosen.red()), static_cast<unsigned>(chosen.green()),
               static_cast<unsigned>(chosen.blue()));
}

}  // namespace norlaplan
