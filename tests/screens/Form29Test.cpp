#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>

#include "screens/Information.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/InformationControls.h"

namespace norlaplan::testing {
namespace {

/// The picture browser by its button, on pictures of the test: START.JPG 400x300 red, gimbal.jpg 1600x1200
/// green, Radar.jpg 300x600 blue, and a text.
struct Browser : Program {
    explicit Browser(const std::function<void(Program&)>& prepare = [](Program&) {}) {
        giveInformation(*this);
        prepare(*this);
        state.options.nedGroveOption = true;
        screens.show(forms::kMainMenu);
        click(forms::kMainMenu, "Command17");
    }
    QListWidget& list() { return control<QListWidget>(forms::kPictureBrowser, "File1"); }
    QStringList names() {
        QStringList all;
        for (int row = 0; row < list().count(); ++row)
            all << list().item(row)->text();
        return all;
    }
    void choose(const char* name) {
        QListWidgetItem* const item = list().findItems(name, Qt::MatchExactly).front();
        QApplication::processEvents();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualItemRect(item).center());
    }
    QColor shown() {
        QApplication::processEvents();
        const QImage image = control<QWidget>(forms::kPictureBrowser, "Image1").grab().toImage();
        return image.pixelColor(image.width() / 2, image.height() / 2);
    }
    void view() { click(forms::kPictureBrowser, "Command2"); }
    bool isFullSize() { return full().isVisible(); }
    QScrollArea& full() { return control<QScrollArea>(forms::kPictureBrowser, "FullSize"); }
};

bool isLike(const QColor& shown, const QColor& colour) {
    return std::abs(shown.red() - colour.red()) + std::abs(shown.green() - colour.green()) +
               std::abs(shown.blue() - colour.blue()) <
           60;
}

}  // namespace

/// The picture browser.
class Form29Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kPictureBrowser, {kInformationRows, informationScenes()}),
                 QStringList());
    }

    void itListsTheFilesOfItsFolderAndBeginsWithStart() {
        Browser browser;
        QCOMPARE(browser.inFront(), std::string(forms::kPictureBrowser));
        QCOMPARE(browser.names(), (QStringList{"gimbal.jpg", "notes.txt", "Radar.jpg", "START.JPG"}));
        QCOMPARE(browser.list().currentItem()->text(), QString("START.JPG"));
        QVERIFY(isLike(browser.shown(), Qt::red));
        QVERIFY(browser.messages.shown.empty());
    }

    void startIsFoundHoweverItIsWritten() {
        Browser browser([](Program& program) {
            program.take("neds Pictures/START.JPG");
            program.give("neds Pictures/start.jpg", pictureOf({40, 30}, Qt::red, "JPG"));
        });
        QCOMPARE(browser.list().currentItem()->text(), QString("start.jpg"));
    }

    void foldersAndHiddenFilesAreNotListed() {
        Browser browser([](Program& program) {
            program.give("neds Pictures/more/inside.jpg", "x");
            program.give("neds Pictures/.hidden.jpg", "x");
        });
        QCOMPARE(browser.names().size(), qsizetype{4});
    }

    void aClickShowsAFile() {
        Browser browser;
        browser.choose("gimbal.jpg");
        QVERIFY(isLike(browser.shown(), Qt::green));
        browser.choose("Radar.jpg");
        QVERIFY(isLike(browser.shown(), Qt::blue));
    }

    void theArrowKeysShowFilesAndEnterViewsOne() {
        Browser browser;
        QCOMPARE(browser.screens.current()->focusWidget(), &browser.list());
        QTest::keyClick(&browser.list(), Qt::Key_Up);
        QVERIFY(isLike(browser.shown(), Qt::blue));
        QTest::keyClick(&browser.list(), Qt::Key_Return);
        QVERIFY(browser.isFullSize());
        QTest::keyClick(&browser.full(), Qt::Key_Return);
        QVERIFY(browser.isFullSize());
        QTest::keyClick(&browser.full(), Qt::Key_Escape);
        QVERIFY(!browser.isFullSize());
        QCOMPARE(browser.list().currentItem()->text(), QString("Radar.jpg"));
        QTest::keyClick(&browser.list(), Qt::Key_Escape);
        QCOMPARE(browser.inFront(), std::string(forms::kMainMenu));
    }

    void theChosenPictureIsSeenAtFullSizeAndCanBeMoved() {
        Browser browser;
        browser.choose("gimbal.jpg");
        browser.view();
        QApplication::processEvents();
        QVERIFY(browser.isFullSize());
        QVERIFY(!browser.list().isVisible());
        const auto& picture = *qobject_cast<QLabel*>(browser.full().widget());
        QCOMPARE(picture.pixmap().size(), QSize(1600, 1200));
        QVERIFY(picture.width() >= 1600 && picture.height() >= 1200);
        QTest::keyClick(&browser.full(), Qt::Key_Right);
        QVERIFY(browser.full().horizontalScrollBar()->value() > 0);
        browser.click(forms::kPictureBrowser, "BackToList");
        QVERIFY(browser.list().isVisible());
        QVERIFY(isLike(browser.shown(), Qt::green));
    }

    void withNoFileChosenTheMessageAsksForOne() {
        Browser browser([](Program& program) { program.take("neds Pictures/START.JPG"); });
        QVERIFY(browser.list().selectedItems().isEmpty());
        browser.view();
        QCOMPARE(browser.lastMessage(),
                 (Message{"No Drawing Chosen", "Please select a drawing from the file list"}));
        QVERIFY(!browser.isFullSize());
    }

    void aFileThatIsNoPictureIsAnErrorAndTheBrowserStays() {
        Browser browser;
        browser.choose("notes.txt");
        QCOMPARE(browser.lastMessage().title, std::string("Run-time error '481'"));
        QCOMPARE(browser.inFront(), std::string(forms::kPictureBrowser));
        QVERIFY(!isLike(browser.shown(), Qt::red));
        browser.choose("gimbal.jpg");
        QVERIFY(isLike(browser.shown(), Qt::green));
    }

    void aFileThatHasGoneIsAnErrorAndTheBrowserStays() {
        Browser browser;
        browser.choose("gimbal.jpg");
        browser.take("neds Pictures/gimbal.jpg");
        browser.view();
        QCOMPARE(browser.lastMessage().title, std::string("Run-time error '53'"));
        QCOMPARE(browser.inFront(), std::string(forms::kPictureBrowser));
        QVERIFY(!browser.isFullSize());
    }

    void aMissingFolderIsAnErrorAndTheMenuStays() {
        Browser browser([](Program& program) { program.take("neds Pictures"); });
        QCOMPARE(browser.lastMessage().title, std::string("Run-time error '76'"));
        QVERIFY(browser.lastMessage().prompt.starts_with("Path not found: "));
        QCOMPARE(browser.inFront(), std::string(forms::kMainMenu));
    }

    void theMainMenuButtonReturnsAndTheBrowserBeginsAnew() {
        Browser browser;
        browser.choose("gimbal.jpg");
        browser.view();
        browser.click(forms::kPictureBrowser, "Command1");
        QCOMPARE(browser.inFront(), std::string(forms::kMainMenu));
        browser.give("neds Pictures/new.jpg", pictureOf({40, 30}, Qt::red, "JPG"));
        browser.click(forms::kMainMenu, "Command17");
        QVERIFY(!browser.isFullSize());
        QVERIFY(browser.names().contains("new.jpg"));
        QCOMPARE(browser.list().currentItem()->text(), QString("START.JPG"));
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form29Test)
#include "Form29Test.moc"
