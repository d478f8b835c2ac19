#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "screens/Program.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

/// Does `answer` to the dialog that the next call opens.
template <typename Dialog>
void whenOpen(std::function<void(Dialog&)> answer) {
    QTimer::singleShot(50, qApp, [answer = std::move(answer)] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr) answer(*dialog);
    });
}

SaveRequest sheetRequest(const std::filesystem::path& folder) {
    return {"Save Data Sheet As",
            {{"Rich Text File(*.rtf)", "*.rtf"}, {"Bitmap File(*.bmp)", "*.bmp"}},
            ".rtf",
            folder,
            "K19013XP0"};
}

}  // namespace

class PortsTest : public QObject {
    Q_OBJECT

  private slots:
    void a_message_has_its_title_its_prompt_as_plain_text_and_its_icon() {
        QString title, text;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            title = box.windowTitle();
            text = box.text();
            icon = box.icon();
            QCOMPARE(box.textFormat(), Qt::PlainText);
            box.button(QMessageBox::Ok)->click();
        });
        QtMessages().show({"Missing Data", "<b>not bold</b>", Icon::Critical});
        QCOMPARE(title, QString("Missing Data"));
        QCOMPARE(text, QString("<b>not bold</b>"));
        QCOMPARE(icon, QMessageBox::Critical);
    }

    void a_question_gives_the_users_answer() {
        const std::pair<QMessageBox::StandardButton, Answer> answers[] = {
            {QMessageBox::Yes, Answer::Yes},
            {QMessageBox::No, Answer::No},
            {QMessageBox::Cancel, Answer::Cancel}};
        for (const auto& [button, answer] : answers) {
            whenOpen<QMessageBox>([wanted = button](QMessageBox& box) { box.button(wanted)->click(); });
            QCOMPARE(QtMessages().ask({"Program Help", "Known?"}, Buttons::YesNoCancel), answer);
        }
    }

    void closing_a_question_changes_nothing() {
        whenOpen<QMessageBox>([](QMessageBox& box) { box.reject(); });
        QCOMPARE(QtMessages().ask({"Program Help", "Known?"}, Buttons::YesNoCancel), Answer::Cancel);
        whenOpen<QMessageBox>([](QMessageBox& box) {
            QTest::keyClick(&box, Qt::Key_Escape);
            // A box of Yes and No has no way out but these two.
            if (box.isVisible()) box.button(QMessageBox::No)->click();
        });
        QCOMPARE(QtMessages().ask({"Warning", "Quit?"}, Buttons::YesNo), Answer::No);
    }

    void the_save_dialog_starts_as_asked_and_adds_the_extension() {
        const TemporaryFolder files;
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QString("Save Data Sheet As"));
            QCOMPARE(dialog.directory().path(), QString::fromStdString(files.path().string()));
            QVERIFY(!dialog.testOption(QFileDialog::DontConfirmOverwrite));
            static_cast<QDialog&>(dialog).accept();
        });
        const auto choice = QtSaveDialog().askWhereToSave(sheetRequest(files.path()));
        QVERIFY(choice.has_value());
        QCOMPARE(choice->path, files.path() / "K19013XP0.rtf");
        QCOMPARE(choice->filterIndex, 1);
    }

    void another_filter_brings_its_own_extension() {
        const TemporaryFolder files;
        whenOpen<QFileDialog>([](QFileDialog& dialog) {
            dialog.selectNameFilter("Bitmap File(*.bmp)");
            emit dialog.filterSelected("Bitmap File(*.bmp)");
            static_cast<QDialog&>(dialog).accept();
        });
        const auto choice = QtSaveDialog().askWhereToSave(sheetRequest(files.path()));
        QVERIFY(choice.has_value());
        QCOMPARE(choice->path, files.path() / "K19013XP0.bmp");
        QCOMPARE(choice->filterIndex, 2);
    }

    void a_typed_extension_counts_more_than_the_filter() {
        const TemporaryFolder files;
        whenOpen<QFileDialog>([](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText("mine.BMP");
            static_cast<QDialog&>(dialog).accept();
        });
        const auto choice = QtSaveDialog().askWhereToSave(sheetRequest(files.path()));
        QVERIFY(choice.has_value());
        QCOMPARE(choice->path, files.path() / "mine.BMP");
        QCOMPARE(choice->filterIndex, 2);
    }

    void an_existing_file_is_replaced_only_when_the_user_agrees() {
        const TemporaryFolder files;
        files.write("K19013XP0.rtf", "old");
        bool asked = false;
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                asked = true;
                box.button(QMessageBox::No)->click();
            });
            static_cast<QDialog&>(dialog).accept();
            dialog.reject();
        });
        QVERIFY(!QtSaveDialog().askWhereToSave(sheetRequest(files.path())).has_value());
        QVERIFY(asked);
    }

    void a_cancelled_dialog_gives_nothing() {
        const TemporaryFolder files;
        whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        QVERIFY(!QtSaveDialog().askWhereToSave(sheetRequest(files.path())).has_value());
    }
};

QTEST_MAIN(PortsTest)
#include "PortsTest.moc"
