#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include "numbers/RuntimeError.h"
#include "paint/PainterCanvas.h"
#include "screens/BusyPointer.h"
#include "screens/platform/QtPorts.h"

namespace norlaplan {

bool QtPrinter::print(const std::string& documentName, const Drawing& drawing) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QString::fromStdString(documentName));
    printer.setFullPage(true);
    printer.setPageLayout(pageLayoutOf(drawing.paper));
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return false;

    const BusyPointer busy;
    QPainter painter;
    if (!painter.begin(&printer)) raise(fault::kDeviceIo);
    PainterCanvas canvas(painter, drawing.paper, printer.resolution(), [&printer] { printer.newPage(); });
    drawing.draw(canvas);
    if (!painter.end() || printer.printerState() == QPrinter::Error) raise(fault::kDeviceIo);
    return true;
}

}  // namespace norlaplan
