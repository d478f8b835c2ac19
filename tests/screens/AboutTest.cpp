#include <QAction>
#include <QLabel>
#include <QTextEdit>

#include "screens/Information.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/InformationControls.h"

namespace norlaplan::testing {
namespace {

struct Menu : Program {
    Menu() {
        giveInformation(*this);
        screens.show(forms::kMainMenu);
    }
    void pick(const char* item) { control<QAction>(forms::kMainMenu, item).trigger(); }
    QString catalog() { return control<QTextEdit>(forms::kCatalogPages, "RichTextBox1").toPlainText(); }
};

}  // namespace

/// The About box and the catalog introduction.
class AboutTest : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kAbout, {kInformationRows, informationScenes()}), QStringList());
        QCOMPARE(controlsThatDiffer(forms::kCatalogPages, {kInformationRows, informationScenes()}),
                 QStringList());
    }

    void theAboutBoxTellsTheReleaseUnderAPicture() {
        Menu menu;
        menu.pick("About");
        QCOMPARE(menu.screens.current()->windowTitle(), QString("About Norlaplan-MM"));
        QCOMPARE(menu.control<QLabel>(forms::kAbout, "Label1").text(), QString("NORLAPLAN-MM version 1.00"));
        QVERIFY(!menu.control<QLabel>(forms::kAbout, "Image1").pixmap().isNull());
        menu.compareButton(forms::kAbout, "Command1", "Close", "");
    }

    void itsButtonEnterAndEscapeHideTheAboutBox() {
        Menu menu;
        for (const int way : {0, 1, 2}) {
            menu.pick("About");
            QCOMPARE(menu.inFront(), std::string(forms::kAbout));
            QWidget* const focus = menu.screens.current()->focusWidget();
            if (way == 0) menu.click(forms::kAbout, "Command1");
            if (way == 1) QTest::keyClick(focus, Qt::Key_Return);
            if (way == 2) QTest::keyClick(focus, Qt::Key_Escape);
            QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        }
    }

    void theCatalogIntroductionIsReadAtActivation() {
        Menu menu;
        menu.pick("CatalogIntroduction");
        QCOMPARE(menu.screens.current()->windowTitle(), QString("Varden Norlaring Catalog"));
        QVERIFY(menu.catalog().contains("The catalog begins"));
        menu.compareButton(forms::kCatalogPages, "Command1", "&Main Menu", "Return to main menu");
        menu.click(forms::kCatalogPages, "Command1");
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        menu.give("help/INTRO.RTF", "{\\rtf1 Another beginning\\par}");
        menu.pick("CatalogIntroduction");
        QVERIFY(menu.catalog().contains("Another beginning"));
    }

    void aMissingIntroductionIsAFileErrorAndTheMenuStays() {
        Menu menu;
        menu.take("help/INTRO.RTF");
        menu.pick("CatalogIntroduction");
        QCOMPARE(menu.lastMessage(),
                 (Message{"Run-time error '53'",
                          "File not found: " + (menu.files.path() / "help/INTRO.RTF").string() +
                              "\n\nCatalog Introduction",
                          Icon::Critical}));
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
    }

    void downloadingACatalogDoesNothing() {
        Menu menu;
        menu.pick("Catalog");
        QCOMPARE(menu.inFront(), std::string(forms::kMainMenu));
        QVERIFY(menu.messages.shown.empty());
        QVERIFY(menu.desktop.opened.empty());
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::AboutTest)
#include "AboutTest.moc"
