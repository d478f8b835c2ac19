#include <QColorDialog>
#include <QFileDialog>
#include <QTimer>
#include <QtTest>

#include "screens/platform/QtPorts.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {
namespace {

/// Does `answer` to the dialog that the next call opens, as soon as it is there.
template <typename Dialog>
void whenOpen(std::function<void(Dialog&)> answer) {
    auto* const soon = new QTimer(qApp);
    QObject::connect(soon, &QTimer::timeout, soon, [soon, answer = std::move(answer)] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        soon->deleteLater();
        soon->stop();
        answer(*dialog);
        // A check that fails in the answer leaves the dialog open.
        if (dialog->isVisible()) dialog->reject();
    });
    soon->start(1);
}

/// The toolkit's dialogs behind the ports QtOpenDialog and QtColourDialog.
class DialogsTest : public QObject {
    Q_OBJECT

  private slots:
    void aFileIsOpenedFromTheFolderThatIsAskedFor() {
        const TemporaryFolder files;
        files.write("pump.app", "");
        files.write("note.txt", "");
        const OpenRequest request{"Open Application", {"Application (*.app)", "*.app"}, files.path()};
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QString("Open Application"));
            QCOMPARE(dialog.directory().path(), QString::fromStdString(files.path().string()));
            QCOMPARE(dialog.nameFilters(), QStringList("Application (*.app)"));
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
            dialog.selectFile("pump.app");
            static_cast<QDialog&>(dialog).accept();
        });
        const auto chosen = QtOpenDialog().askWhatToOpen(request);
        QVERIFY(chosen.has_value());
        QCOMPARE(chosen->string(), (files.path() / "pump.app").string());
    }

    void aFileThatIsNotChosenIsNone() {
        const TemporaryFolder files;
        whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        QVERIFY(!QtOpenDialog().askWhatToOpen({"Open", {"All (*)", "*"}, files.path()}).has_value());
    }

    void aColourStartsAsItIsAndComesBackAsItWasChosen() {
        whenOpen<QColorDialog>([](QColorDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QString("Row 1"));
            QCOMPARE(dialog.currentColor(), QColor(10, 20, 30));
            dialog.setCurrentColor(QColor(200, 100, 50));
            dialog.accept();
        });
        const auto chosen = QtColourDialog().askColour("Row 1", rgb(10, 20, 30));
        QVERIFY(chosen.has_value());
        QCOMPARE(*chosen, rgb(200, 100, 50));
    }

    void aColourThatIsNotChosenIsNone() {
        whenOpen<QColorDialog>([](QColorDialog& dialog) { dialog.reject(); });
        QVERIFY(!QtColourDialog().askColour("Row 1", rgb(10, 20, 30)).has_value());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::DialogsTest)
#include "DialogsTest.moc"
