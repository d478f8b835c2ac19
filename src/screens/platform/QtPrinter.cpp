#include <QApplication>
#include <QPrinterInfo>

#include "screens/PrintPreview.h"
#include "screens/platform/QtPorts.h"

namespace norlaplan {

bool QtPrinter::print(const std::string& documentName, const Drawing& drawing) {
    const bool hasPrinter = !QPrinterInfo::availablePrinterNames().isEmpty();
    return PrintPreview(documentName, drawing, saveDialog_, desktop_, hasPrinter,
                        QApplication::activeWindow())
        .run();
}

}  // namespace norlaplan
