#include "screens/PrintPreview.h"

#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "numbers/RuntimeError.h"
#include "paint/PainterCanvas.h"
#include "paint/PictureFile.h"
#include "screens/BusyPointer.h"
#include "screens/DrawingView.h"
#include "screens/FormBuilder.h"
#include "screens/SavedLine.h"
#include "screens/Theme.h"
#include "state/DesktopPort.h"
#include "state/FileFault.h"
#include "state/Pages.h"
#include "state/Ports.h"

namespace norlaplan {
namespace {

constexpr QSize kUsualSize(860, 920);

int pagesOf(const Drawing& drawing) {
    QImage nowhere(1, 1, QImage::Format_RGB32);
    QPainter painter(&nowhere);
    PainterCanvas measure(painter, drawing.paper, 72.0);
    return pageCount(drawing, measure);
}

void drawOn(QPrinter& printer, const Drawing& drawing) {
    const BusyPointer busy;
    if (!printer.outputFileName().isEmpty()) {
        // The toolkit would write over what stands there, and say nothing of a full disk.
        savePictureAs(printer.outputFileName().toStdString(), drawing, ".pdf");
        return;
    }
    const std::string name = printer.printerName().toStdString();
    QPainter painter;
    if (!painter.begin(&printer)) raiseFile(fault::kDeviceIo, name);
    PainterCanvas canvas(painter, drawing.paper, printer.resolution(), [&printer] { printer.newPage(); });
    drawing.draw(canvas);
    if (!painter.end() || printer.printerState() == QPrinter::Error) raiseFile(fault::kDeviceIo, name);
}

/// What the print dialog asks for. Pages that a print server picks from the whole document aren't meant.
Drawing chosenPages(const QPrinter& printer, const Drawing& drawing, int inView) {
    if (printer.printRange() == QPrinter::CurrentPage) return onePage(drawing, inView);
    if (printer.printRange() == QPrinter::PageRange)
        return somePages(drawing, printer.fromPage(), printer.toPage());
    return drawing;
}

/// The document's name as a file's name.
std::string fileNameOf(std::string name) {
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '/' || c == '\\' || c == ':'; }, '-');
    return name + ".pdf";
}

std::filesystem::path documentsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString();
}

}  // namespace

PrintPreview::PrintPreview(const std::string& documentName, Drawing drawing, SaveDialogPort& saveDialog,
                           DesktopPort& desktop, bool hasPrinter, QWidget* parent)
    : QDialog(parent),
      name_(documentName),
      drawing_(std::move(drawing)),
      saveDialog_(saveDialog),
      desktop_(desktop),
      saved_(new SavedLine),
      pages_(pagesOf(drawing_)),
      view_(new DrawingView("Page", "Page as it will be printed")) {
    setObjectName("PrintPreview");
    setWindowTitle("Print: " + QString::fromStdString(documentName));
    layOut(hasPrinter);
    const QSize room = screen()->availableSize() - QSize(40, 80);
    resize(kUsualSize.boundedTo(room));
    showPage(1);
}

QPushButton* PrintPreview::makeButton(const char* name, const QString& caption, const QString& tip,
                                      void (PrintPreview::*action)()) {
    QPushButton* const made = build::button(name, caption, tip);
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, [this, action] { guarded(action); });
    return made;
}

void PrintPreview::layOut(bool hasPrinter) {
    previous_ = makeButton("PreviousPage", "<", "Page before", &PrintPreview::previousPage);
    previous_->setAccessibleName("Page before");
    next_ = makeButton("NextPage", ">", "Next page", &PrintPreview::nextPage);
    next_->setAccessibleName("Next page");
    pageLabel_ = build::label("PageNumber");
    notice_ = build::label("Notice");
    notice_->setWordWrap(true);
    QPushButton* const print =
        makeButton("Print", "&Print...", "Choose the printer and print", &PrintPreview::print);
    QPushButton* const pdf =
        makeButton("SaveAsPdf", "&Save as PDF...", "Write these pages to a file", &PrintPreview::saveAsPdf);
    close_ = build::button("Close", "&Close", "Leave without printing");
    connect(close_, &QPushButton::clicked, this, &QDialog::reject);
    print->setEnabled(hasPrinter);
    QPushButton* const main = hasPrinter ? print : pdf;
    main->setDefault(true);
    theme::makeMain(*main);
    if (!hasPrinter) {
        notice_->setText(
            "No printer is installed. \"Save as PDF...\" writes these pages to a file, which "
            "any computer can print.");
    }
    notice_->setVisible(!hasPrinter);
    connect(&saved_->open(), &QPushButton::clicked, this, [this] { openSaved(saved_->path()); });
    connect(&saved_->showInFolder(), &QPushButton::clicked, this,
            [this] { openSaved(saved_->path().parent_path()); });

    auto* const top = theme::spaced(new QHBoxLayout, 0);
    top->addWidget(previous_);
    top->addWidget(pageLabel_);
    top->addWidget(next_);
    top->addStretch();
    top->addWidget(
        makeButton("WholePage", "&Whole Page", "Show the whole page", &PrintPreview::showWholePage));
    top->addWidget(makeButton("PageWidth", "Page W&idth", "Show the page as wide as the window",
                              &PrintPreview::showPageWidth));
    auto* const foot = theme::spaced(new QHBoxLayout, 0);
    foot->addStretch();
    foot->addWidget(close_);
    foot->addWidget(pdf);
    foot->addWidget(print);
    auto* const column = theme::spaced(new QVBoxLayout(this));
    column->addLayout(top);
    column->addWidget(view_, 1);
    column->addWidget(notice_);
    column->addWidget(saved_);
    column->addLayout(foot);
}

bool PrintPreview::run() {
    exec();
    if (failure_) std::rethrow_exception(failure_);
    return done_;
}

void PrintPreview::guarded(void (PrintPreview::*action)()) {
    try {
        (this->*action)();
    } catch (...) {
        // No exception may pass the dialog's own event loop.
        failure_ = std::current_exception();
        reject();
    }
}

void PrintPreview::showPage(int page) {
    page_ = std::clamp(page, 1, pages_);
    view_->showDrawing(onePage(drawing_, page_));
    view_->showWholePage();
    pageLabel_->setText(QString("Page %1 of %2").arg(page_).arg(pages_));
    previous_->setEnabled(page_ > 1);
    next_->setEnabled(page_ < pages_);
    for (QWidget* const turner : {static_cast<QWidget*>(previous_), static_cast<QWidget*>(next_)})
        turner->setVisible(pages_ > 1);
}

void PrintPreview::showWholePage() {
    view_->showWholePage();
}

void PrintPreview::showPageWidth() {
    view_->showPageWidth();
}

void PrintPreview::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QString::fromStdString(name_));
    printer.setFullPage(true);
    printer.setPageLayout(pageLayoutOf(drawing_.paper));
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, pages_);
    dialog.setOption(QPrintDialog::PrintPageRange, pages_ > 1);
    dialog.setOption(QPrintDialog::PrintCurrentPage, pages_ > 1);
    if (dialog.exec() != QDialog::Accepted) return;
    drawOn(printer, chosenPages(printer, drawing_, page_));
    done_ = true;
    accept();
}

void PrintPreview::saveAsPdf() {
    const SaveRequest request{
        "Save Pages As", {{"PDF Files (*.pdf)", "*.pdf"}}, ".pdf", documentsFolder(), fileNameOf(name_)};
    const std::optional<SaveChoice> choice = saveDialog_.askWhereToSave(request);
    if (!choice) return;
    const BusyPointer busy;
    savePicture(choice->path, drawing_);
    done_ = true;
    notice_->hide();
    saved_->tell(choice->path);
    close_->setFocus();
}

void PrintPreview::openSaved(const std::filesystem::path& path) {
    if (desktop_.open(path)) return;
    notice_->setText("This desktop has no program that opens " + QString::fromStdString(path.string()));
    notice_->show();
}

void PrintPreview::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_PageDown)
        nextPage();
    else if (event->key() == Qt::Key_PageUp)
        previousPage();
    else
        QDialog::keyPressEvent(event);
}

}  // namespace norlaplan
