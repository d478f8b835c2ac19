#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTimer>
#include <functional>

#include "screens/DrawingView.h"
#include "screens/PrintPreview.h"
#include "screens/Program.h"
#include "support/DiskTroubles.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// Two landscape pages: a red bar at the top of the first, a blue one at the top of the second.
Drawing twoPages() {
    return {papers::kLetterLandscape, [](Canvas& canvas) {
                canvas.rectangle({1.0, 8.0, 10.0, 7.0}, colours::kRed, std::nullopt);
                canvas.newPage();
                canvas.rectangle({1.0, 8.0, 10.0, 7.0}, colours::kBlue, std::nullopt);
            }};
}

struct Preview {
    explicit Preview(bool hasPrinter = true, Drawing drawing = twoPages())
        : dialog("A: list", std::move(drawing), saveDialog, desktop, hasPrinter, nullptr) {
        dialog.show();
    }
    template <typename Control = QPushButton>
    Control& control(const char* name) {
        return *dialog.findChild<Control*>(name);
    }
    PresetSaveDialog saveDialog;
    RecordingDesktop desktop;
    PrintPreview dialog;
};

/// Once the preview runs: presses Print, in the system's dialog takes the printer that is a file, chooses
/// pages, and says yes when it asks whether to write over it.
void printTo(
    Preview& preview, const QString& file,
    const std::function<void(QPrintDialog&)>& choose = [](QPrintDialog&) {}) {
    QTimer::singleShot(0, &preview.dialog, [&preview, file, choose] {
        bool chosen = false;
        QTimer soon;
        QObject::connect(&soon, &QTimer::timeout, [&] {
            QWidget* const front = QApplication::activeModalWidget();
            if (auto* const question = qobject_cast<QMessageBox*>(front)) {
                question->button(QMessageBox::Yes)->click();
            } else if (auto* const dialog = qobject_cast<QPrintDialog*>(front);
                       dialog != nullptr && !chosen) {
                chosen = true;
                auto* const printers = dialog->findChild<QComboBox*>("printers");
                printers->setCurrentIndex(printers->count() - 1);
                dialog->findChild<QLineEdit*>("filename")->setText(file);
                choose(*dialog);
                // Later: this timer doesn't tick while one of its ticks waits for an answer.
                QTimer::singleShot(0, dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                                   &QPushButton::click);
            }
        });
        soon.start(1);
        preview.control("Print").click();
    });
}

/// What the preview of the second page prints to a file, without the time.
std::string printedFromTheSecondPage(const TemporaryFolder& files,
                                     const std::function<void(QPrintDialog&)>& choose) {
    Preview preview;
    preview.control("NextPage").click();
    printTo(preview, QString::fromStdString((files.path() / "list.pdf").string()), choose);
    preview.dialog.run();
    std::string pdf = files.read("list.pdf");
    const std::size_t time = pdf.find("/CreationDate");
    return pdf.erase(time, pdf.find('\n', time) - time);
}

}  // namespace

class PrintPreviewTest : public QObject {
    Q_OBJECT

  private slots:
    void it_shows_one_page_at_a_time_and_turns_by_button_and_key() {
        Preview preview;
        QCOMPARE(preview.control<QLabel>("PageNumber").text(), QString("Page 1 of 2"));
        QVERIFY(!preview.control("PreviousPage").isEnabled());
        preview.control("NextPage").click();
        QCOMPARE(preview.control<QLabel>("PageNumber").text(), QString("Page 2 of 2"));
        QVERIFY(!preview.control("NextPage").isEnabled());
        QTest::keyClick(&preview.dialog, Qt::Key_PageUp);
        QCOMPARE(preview.control<QLabel>("PageNumber").text(), QString("Page 1 of 2"));
        QTest::keyClick(&preview.dialog, Qt::Key_PageUp);
        QCOMPARE(preview.control<QLabel>("PageNumber").text(), QString("Page 1 of 2"));
        QTest::keyClick(&preview.dialog, Qt::Key_PageDown);
        QCOMPARE(preview.control<QLabel>("PageNumber").text(), QString("Page 2 of 2"));
    }

    void the_page_in_view_is_the_one_that_will_be_printed() {
        Preview preview;
        auto* const view = preview.dialog.findChild<QAbstractScrollArea*>();
        QVERIFY(view != nullptr);
        const auto middleOfBar = [&] {
            const QImage shown = view->viewport()->grab().toImage();
            const auto& drawn = static_cast<DrawingView&>(*view);
            // The page stands whole in the middle of the view; the bar's middle lies an inch below its top.
            const int top = (shown.height() - qRound(8.5 * drawn.pixelsPerInch())) / 2;
            return shown.pixelColor(shown.width() / 2, top + qRound(drawn.pixelsPerInch()));
        };
        QCOMPARE(middleOfBar(), QColor(Qt::red));
        preview.control("NextPage").click();
        QCOMPARE(middleOfBar(), QColor(Qt::blue));
    }

    void a_single_page_has_nothing_to_turn() {
        Preview preview(true, {papers::kLetter, [](Canvas&) {}});
        QCOMPARE(preview.control<QLabel>("PageNumber").text(), QString("Page 1 of 1"));
        QVERIFY(!preview.control("NextPage").isVisible());
    }

    void the_pdf_holds_every_page_on_its_paper() {
        TemporaryFolder files;
        Preview preview;
        preview.saveDialog.choice = SaveChoice{files.path() / "list.pdf", 1};
        preview.control("SaveAsPdf").click();
        QCOMPARE(preview.saveDialog.requests.at(0).name, std::string("A- list.pdf"));
        const std::string pdf = files.read("list.pdf");
        QVERIFY(pdf.starts_with("%PDF"));
        QVERIFY(pdf.find("/Count 2") != std::string::npos);
        QVERIFY(pdf.find("[0 0 792") != std::string::npos);
        QVERIFY(preview.control<QLabel>("SavedText").isVisible());
        QVERIFY(preview.control<QLabel>("SavedText").toolTip().endsWith("list.pdf"));
        QVERIFY(preview.dialog.isVisible());
    }

    void the_pdf_is_proposed_among_the_users_documents() {
        Preview preview;
        preview.control("SaveAsPdf").click();
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QVERIFY(!documents.isEmpty());
        QCOMPARE(QString::fromStdString(preview.saveDialog.requests.at(0).folder.string()), documents);
    }

    void the_saved_pdf_opens_from_the_preview_and_so_does_its_folder() {
        TemporaryFolder files;
        Preview preview;
        preview.saveDialog.choice = SaveChoice{files.path() / "list.pdf", 1};
        preview.control("SaveAsPdf").click();
        preview.control("OpenSaved").click();
        preview.control("ShowSaved").click();
        QCOMPARE(preview.desktop.opened, (std::vector{files.path() / "list.pdf", files.path()}));
        QVERIFY(!preview.control<QLabel>("Notice").isVisible());
        preview.desktop.hasProgram = false;
        preview.control("OpenSaved").click();
        QVERIFY(preview.control<QLabel>("Notice").text().endsWith(
            "no program that opens " + QString::fromStdString((files.path() / "list.pdf").string())));
    }

    void a_cancelled_pdf_leaves_the_preview_as_it_was() {
        Preview preview;
        preview.control("SaveAsPdf").click();
        QVERIFY(preview.dialog.isVisible());
        QVERIFY(!preview.control<QLabel>("Notice").isVisible());
    }

    void without_a_printer_it_says_so_and_offers_the_file() {
        Preview preview(false);
        QVERIFY(preview.control<QLabel>("Notice").text().startsWith("No printer is installed."));
        QVERIFY(preview.control<QLabel>("Notice").isVisible());
        QVERIFY(!preview.control("Print").isEnabled());
        QVERIFY(preview.control("SaveAsPdf").isDefault());
    }

    void run_says_whether_something_was_written() {
        TemporaryFolder files;
        PresetSaveDialog saveDialog;
        RecordingDesktop desktop;
        saveDialog.choice = SaveChoice{files.path() / "list.pdf", 1};
        PrintPreview written("list", twoPages(), saveDialog, desktop, true, nullptr);
        QTimer::singleShot(0, &written, [&] {
            written.findChild<QPushButton*>("SaveAsPdf")->click();
            written.findChild<QPushButton*>("Close")->click();
        });
        QVERIFY(written.run());
        PrintPreview left("list", twoPages(), saveDialog, desktop, true, nullptr);
        QTimer::singleShot(0, &left, [&] { left.findChild<QPushButton*>("Close")->click(); });
        QVERIFY(!left.run());
    }

    void a_pdf_that_cannot_be_written_ends_the_preview_with_its_error() {
        TemporaryFolder files;
        PresetSaveDialog saveDialog;
        RecordingDesktop desktop;
        saveDialog.choice = SaveChoice{files.path() / "missing" / "list.pdf", 1};
        PrintPreview preview("list", twoPages(), saveDialog, desktop, true, nullptr);
        QTimer::singleShot(0, &preview, [&] { preview.findChild<QPushButton*>("SaveAsPdf")->click(); });
        QVERIFY_THROWS_EXCEPTION(RuntimeError, preview.run());
    }

    void printing_to_a_file_writes_every_page_and_onto_a_full_disk_leaves_the_old_one() {
        TemporaryFolder files;
        files.write("list.pdf", "old");
        const QString file = QString::fromStdString((files.path() / "list.pdf").string());
        {
            const FullDisk disk(files.path());
            Preview preview;
            printTo(preview, file);
            try {
                preview.dialog.run();
                QFAIL("there is no room for it");
            } catch (const RuntimeError& error) {
                QCOMPARE(QString(error.what()), "Disk full: " + file);
            }
        }
        QCOMPARE(files.read("list.pdf"), std::string("old"));
        Preview preview;
        printTo(preview, file);
        QVERIFY(preview.dialog.run());
        const std::string pdf = files.read("list.pdf");
        QVERIFY(pdf.starts_with("%PDF") && pdf.find("/Count 2") != std::string::npos);
    }

    void of_a_page_range_or_the_page_in_view_no_other_page_is_printed_to_a_file() {
        TemporaryFolder files;
        const auto range = [](int page) {
            return [page](QPrintDialog& dialog) {
                dialog.findChild<QRadioButton*>("printRange")->setChecked(true);
                QCOMPARE(dialog.findChild<QSpinBox*>("to")->maximum(), 2);
                dialog.findChild<QSpinBox*>("from")->setValue(page);
                dialog.findChild<QSpinBox*>("to")->setValue(page);
            };
        };
        const std::string first = printedFromTheSecondPage(files, range(1));
        const std::string second = printedFromTheSecondPage(files, range(2));
        QVERIFY(first.find("/Count 1") != std::string::npos);
        QVERIFY(second.find("/Count 1") != std::string::npos);
        QVERIFY(first != second);
        const std::string inView = printedFromTheSecondPage(files, [](QPrintDialog& dialog) {
            dialog.findChild<QRadioButton*>("printCurrentPage")->setChecked(true);
        });
        QVERIFY(inView == second);
    }

    void escape_leaves_it() {
        Preview preview;
        QTest::keyClick(&preview.dialog, Qt::Key_Escape);
        QVERIFY(!preview.dialog.isVisible());
    }
};

QTEST_MAIN(PrintPreviewTest)
#include "PrintPreviewTest.moc"
