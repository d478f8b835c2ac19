#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
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
        QString title, heading, text;
        bool bold = false;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            title = box.windowTitle();
            heading = box.text();
            text = box.informativeText();
            icon = box.icon();
            bold = box.findChild<QLabel*>("qt_msgbox_label")->font().bold();
            for (const char* const name : {"qt_msgbox_label", "qt_msgbox_informativelabel"})
                QCOMPARE(box.findChild<QLabel*>(name)->textFormat(), Qt::PlainText);
            box.button(QMessageBox::Ok)->click();
        });
        QtMessages().show({"Missing Data", "<b>not bold</b>", Icon::Critical});
        QCOMPARE(title, QString("Missing Data"));
        QCOMPARE(heading, QString("Missing Data"));
        QVERIFY(bold);
        QCOMPARE(text, QString("<b>not bold</b>"));
        QCOMPARE(icon, QMessageBox::Critical);
    }

    void a_box_is_as_wide_as_its_title_in_bold_and_stays_on_the_screen() {
        const std::string titles[] = {"Please choose an internal fitup that the catalogue has for this style",
                                      std::string(400, 'W')};
        for (const std::string& title : titles) {
            int width = 0, wanted = 0, room = 0, height = 0;
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                QFont bold = box.font();
                bold.setBold(true);
                width = box.width();
                height = box.height();
                room = box.screen()->availableSize().width();
                wanted = QFontMetrics(bold).horizontalAdvance(QString::fromStdString(title));
                box.button(QMessageBox::Ok)->click();
            });
            QtMessages().show({title, "One short line.", Icon::Information});
            QVERIFY2(width >= std::min(wanted, room * 3 / 4), title.c_str());
            QVERIFY2(width <= room && height > 0, title.c_str());
        }
    }

    void a_warning_is_answered_no_by_enter_and_by_escape() {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            whenOpen<QMessageBox>([key](QMessageBox& box) { QTest::keyClick(&box, key); });
            QCOMPARE(QtMessages().ask({"Warning", "Quit?", Icon::Warning}, Buttons::YesNo), Answer::No);
        }
    }

    void a_plain_question_is_answered_yes_by_enter_and_left_by_escape() {
        whenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
        QCOMPARE(QtMessages().ask({"Program Help", "Known?"}, Buttons::YesNoCancel), Answer::Yes);
        whenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(QtMessages().ask({"Program Help", "Known?"}, Buttons::YesNoCancel), Answer::Cancel);
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
        whenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
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

    void later_dialogs_open_where_the_user_saved_last() {
        const TemporaryFolder stated, chosen;
        QtSaveDialog dialog;
        const auto saveIn = [&](const std::filesystem::path& folder) {
            whenOpen<QFileDialog>([&](QFileDialog& open) {
                open.findChild<QLineEdit*>("fileNameEdit")
                    ->setText(QString::fromStdString((folder / "mine.rtf").string()));
                static_cast<QDialog&>(open).accept();
            });
            return dialog.askWhereToSave(sheetRequest(stated.path()));
        };
        const auto folderOfNext = [&] {
            std::string folder;
            whenOpen<QFileDialog>([&](QFileDialog& open) {
                folder = open.directory().path().toStdString();
                open.reject();
            });
            dialog.askWhereToSave(sheetRequest(stated.path()));
            return folder;
        };
        QVERIFY(saveIn(chosen.path()).has_value());
        QCOMPARE(folderOfNext(), chosen.path().string());
        {
            const TemporaryFolder gone;
            QVERIFY(saveIn(gone.path()).has_value());
        }
        QCOMPARE(folderOfNext(), stated.path().string());
    }

    void a_cancelled_dialog_gives_nothing() {
        const TemporaryFolder files;
        whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        QVERIFY(!QtSaveDialog().askWhereToSave(sheetRequest(files.path())).has_value());
    }
};

QTEST_MAIN(PortsTest)
#include "PortsTest.moc"
