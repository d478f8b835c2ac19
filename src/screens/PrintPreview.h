#pragma once

#include <QDialog>
#include <exception>
#include <filesystem>
#include <string>

#include "state/Drawing.h"

class QLabel;
class QPushButton;

namespace norlaplan {

class DesktopPort;
class DrawingView;
class SaveDialogPort;
class SavedLine;

/// The pages of a document as they will be, before they are printed or written as a PDF file. Every print of
/// the program goes through it.
class PrintPreview : public QDialog {
  public:
    /// `hasPrinter` says whether there is one to print on; without one only the PDF file is offered.
    PrintPreview(const std::string& documentName, Drawing drawing, SaveDialogPort& saveDialog,
                 DesktopPort& desktop, bool hasPrinter, QWidget* parent);

    /// Shows the pages until the user leaves them. Gives whether they were printed or written. Errors: what
    /// the drawing raises, 57 for a printer that fails, and those of writing the PDF file.
    bool run();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void layOut(bool hasPrinter);
    QPushButton* makeButton(const char* name, const QString& caption, const QString& tip,
                            void (PrintPreview::*action)());
    void showPage(int page);
    void previousPage() { showPage(page_ - 1); }
    void nextPage() { showPage(page_ + 1); }
    void showWholePage();
    void showPageWidth();
    void print();
    void saveAsPdf();
    void openSaved(const std::filesystem::path& path);
    /// Runs an action of a button. A failure ends the preview, and `run` raises it.
    void guarded(void (PrintPreview::*action)());

    std::string name_;
    Drawing drawing_;
    SaveDialogPort& saveDialog_;
    DesktopPort& desktop_;
    SavedLine* saved_;
    int pages_ = 1;
    int page_ = 1;
    bool done_ = false;
    std::exception_ptr failure_;
    DrawingView* view_;
    QLabel *pageLabel_, *notice_;
    QPushButton *previous_, *next_, *close_;
};

}  // namespace norlaplan
