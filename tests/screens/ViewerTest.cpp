#include <QPushButton>
#include <QTextEdit>

#include "screens/Form2.h"
#include "screens/Program.h"

using namespace norlaplan;
using namespace norlaplan::testing;

namespace {

struct Viewer : Program {
    Viewer() {
        files.write("note.rtf", "{\\rtf1\\ansi Plain words}");
        screens.show("Form3");
        showText(screens, "\\note.rtf", "A note", "Exit Note");
    }
    QWidget& text() { return control<QWidget>("Form2", "RichTextBox1"); }
    QWidget& button() { return control<QPushButton>("Form2", "Command1"); }
};

}  // namespace

class ViewerTest : public QObject {
    Q_OBJECT

  private slots:
    void it_shows_the_text_with_the_callers_title_and_button() {
        Viewer viewer;
        QCOMPARE(viewer.inFront(), std::string("Form2"));
        QCOMPARE(viewer.screens.form("Form2").windowTitle(), QString("A note"));
        auto& button = viewer.control<QPushButton>("Form2", "Command1");
        QCOMPARE(button.text(), QString("Exit Note"));
        QCOMPARE(button.toolTip(), QString("Close File"));
        QVERIFY(viewer.control<QTextEdit>("Form2", "RichTextBox1").toPlainText().contains("Plain words"));
    }

    void every_way_out_hides_it_and_none_ends_the_program_data() {
        QTest::addColumn<QString>("way");
        for (const char* const way :
             {"click", "escape in text", "enter in text", "escape in button", "close"})
            QTest::newRow(way) << way;
    }
    void every_way_out_hides_it_and_none_ends_the_program() {
        QFETCH(QString, way);
        Viewer viewer;
        if (way == "click") viewer.click("Form2", "Command1");
        if (way == "escape in text") QTest::keyClick(&viewer.text(), Qt::Key_Escape);
        if (way == "enter in text") QTest::keyClick(&viewer.text(), Qt::Key_Return);
        if (way == "escape in button") QTest::keyClick(&viewer.button(), Qt::Key_Escape);
        if (way == "close") viewer.screens.form("Form2").close();
        QCOMPARE(viewer.inFront(), std::string("Form3"));
        QVERIFY(!viewer.screens.form("Form2").isVisible());
    }
};

QTEST_MAIN(ViewerTest)
#include "ViewerTest.moc"
