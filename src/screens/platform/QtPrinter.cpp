#include <QApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include "numbers/RuntimeError.h"
#include "paint/PainterCanvas.h"
#include "screens/BusyPointer.h"
#include "screens/platform/QtPorts.h"

namespace norlaplan {

bool QtPrinter::print(const std::string& documentName, const std::function<void(Canvas&)>& draw) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QString::fromStdString(documentName));
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setPageOrientation(QPageLayout::Portrait);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return false;

    const BusyPointer busy;
    QPainter painter;
    if (!painter.begin(&printer)) raise(fault::kDeviceIo);
    PainterCanvas canvas(painter, printer.resolution(), [&printer] { printer.newPage(); });
    draw(canvas);
    if (!painter.end() || printer.printerState() == QPrinter::Error) raise(fault::kDeviceIo);
    return true;
}

}  // namespace norlaplan
