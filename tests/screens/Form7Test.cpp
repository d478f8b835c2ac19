#include <QAction>
#include <QPlainTextEdit>
#include <QPushButton>

#include "screens/Information.h"
#include "screens/controls/ControlsOfAForm.h"
#include "screens/controls/InformationControls.h"

namespace norlaplan::testing {
namespace {

/// The main menu over two product lines of the test and the two that are always there.
struct Shop : Program {
    Shop() {
        giveInformation(*this);
        screens.show(forms::kMainMenu);
    }
    void pick(const char* line) { control<QAction>(forms::kMainMenu, line).trigger(); }
    QString title() { return screens.current()->windowTitle(); }
    QString text() { return control<QPlainTextEdit>(forms::kProductPage, "Text1").toPlainText(); }
    QPushButton& table() { return control<QPushButton>(forms::kProductPage, "Command1"); }
    /// What is painted where Image1 is.
    QImage picture() { return control<QWidget>(forms::kProductPage, "Image1").grab().toImage(); }
};

/// How many of the dots in the row and in the column through the middle of the picture are of the colour; a
/// JPEG's colours are near the ones that it was made of.
QSize extentOf(const QImage& image, const QColor& colour) {
    const auto isLike = [&](int x, int y) {
        const QColor dot = image.pixelColor(x, y);
        return std::abs(dot.red() - colour.red()) + std::abs(dot.green() - colour.green()) +
                   std::abs(dot.blue() - colour.blue()) <
               60;
    };
    QSize extent(0, 0);
    for (int x = 0; x < image.width(); ++x)
        extent.rwidth() += isLike(x, image.height() / 2) ? 1 : 0;
    for (int y = 0; y < image.height(); ++y)
        extent.rheight() += isLike(image.width() / 2, y) ? 1 : 0;
    return extent;
}

}  // namespace

/// The pages of the maker's other product lines, and the tables of one of them.
class Form7Test : public QObject {
    Q_OBJECT

  private slots:
    void itsControlsAreAsTheirRowsSay() {
        QCOMPARE(controlsThatDiffer(forms::kProductPage, {kInformationRows, informationScenes()}),
                 QStringList());
        QCOMPARE(controlsThatDiffer(forms::kProductTable, {kInformationRows, informationScenes()}),
                 QStringList());
    }

    void aLineOfTheMenuShowsItsTextAndPicture() {
        Shop shop;
        shop.pick("Stainless");
        QCOMPARE(shop.inFront(), std::string(forms::kProductPage));
        QCOMPARE(shop.title(), QString("Other Varden Bearings"));
        QCOMPARE(shop.text(), QString("For wet places."));
        QCOMPARE(shop.state.otherBearingText, std::string("For wet places."));
        QCOMPARE(shop.state.otherBearingPicture, std::string("\\bearing pictures\\steel.jpg"));
        QVERIFY(shop.control<QPlainTextEdit>(forms::kProductPage, "Text1").isReadOnly());
        QVERIFY(!shop.table().isVisible());
        shop.click(forms::kProductPage, "Close");
        shop.pick("Custom");
        QCOMPARE(shop.text(), QString("Made for you."));
        QVERIFY(shop.messages.shown.empty());
    }

    void thePictureFillsItsBoxAtItsOwnAspect() {
        Shop shop;
        shop.pick("Stainless");
        QApplication::processEvents();
        const QImage tall = shop.picture();
        const QSize upright = extentOf(tall, Qt::green);
        QCOMPARE(upright.height(), tall.height());
        QVERIFY(std::abs(upright.width() * 4 - upright.height() * 3) <= 8);
        shop.screens.current()->close();
        shop.pick("Custom");
        QApplication::processEvents();
        const QImage small = shop.picture();
        const QSize wide = extentOf(small, Qt::blue);
        QVERIFY(wide.width() == small.width() || wide.height() == small.height());
        QVERIFY(std::abs(wide.width() * 3 - wide.height() * 4) <= 8);
    }

    void theMetricSeriesHasCaptionsOfItsOwnAndTheNextLineSetsThemBack() {
        Shop shop;
        shop.pick("Metric Series");
        QCOMPARE(shop.title(), QString("Other Varden Bearings - Metric Series"));
        QCOMPARE(shop.table().text(), QString("Metric Series data Tables"));
        QCOMPARE(shop.table().toolTip(), QString("Load Excel files"));
        QVERIFY(shop.table().isVisible());
        QCOMPARE(shop.text(), QString("Sizes in millimeters.\n\nWith tables."));
        QCOMPARE(shop.state.otherBearingPicture, std::string("\\bearing pictures\\metrics.jpg"));
        shop.click(forms::kProductPage, "Close");
        shop.pick("Stainless");
        QCOMPARE(shop.title(), QString("Other Varden Bearings"));
        QCOMPARE(shop.table().text(), QString("More Information"));
    }

    void enterOnALineWithoutTablesOpensNone() {
        Shop shop;
        shop.pick("Stainless");
        auto& text = shop.control<QPlainTextEdit>(forms::kProductPage, "Text1");
        text.setFocus();
        QTest::keyClick(&text, Qt::Key_Return);
        QVERIFY(shop.office.documents.empty());
        QCOMPARE(shop.inFront(), std::string(forms::kProductPage));
    }

    void theTablesOpenInTheOfficeProgram() {
        Shop shop;
        shop.pick("Metric Series");
        shop.click(forms::kProductPage, "Command1");
        QCOMPARE(shop.inFront(), std::string(forms::kProductTable));
        QCOMPARE(shop.title(), QString("Metric Thin Section Bearings"));
        const std::filesystem::path workbook = shop.files.path() / "training/Metric Bearings.xls";
        QCOMPARE(shop.office.documents, std::vector{workbook});
        QCOMPARE(shop.control<QLineEdit>(forms::kProductTable, "File").text().toStdString(),
                 workbook.string());
        shop.click(forms::kProductTable, "OpenAgain");
        QCOMPARE(shop.office.documents.size(), std::size_t{2});
        shop.click(forms::kProductTable, "Return");
        QCOMPARE(shop.inFront(), std::string(forms::kProductPage));
        QCOMPARE(shop.title(), QString("Other Varden Bearings - Metric Series"));
    }

    void anOfficeProgramThatCannotBeLinkedIsTold() {
        for (const int number : {429, 440, 31024}) {
            Shop shop;
            shop.office.fault = number;
            shop.pick("Metric Series");
            shop.click(forms::kProductPage, "Command1");
            QCOMPARE(shop.lastMessage(),
                     (Message{"Cannot Display Metric Tables", "Cannot link to Microsoft Excell"}));
            QCOMPARE(shop.messages.shown.size(), std::size_t{1});
            QCOMPARE(shop.inFront(), std::string(forms::kProductPage));
        }
    }

    void aMissingWorkbookIsAFileError() {
        Shop shop;
        shop.take("training/Metric Bearings.xls");
        shop.pick("Metric Series");
        shop.click(forms::kProductPage, "Command1");
        QCOMPARE(shop.lastMessage().title, std::string("Run-time error '53'"));
        QVERIFY(shop.lastMessage().prompt.starts_with(
            "File not found: " + (shop.files.path() / "training/Metric Bearings.xls").string()));
        QCOMPARE(shop.inFront(), std::string(forms::kProductPage));
    }

    void aPictureThatIsMissingOrNoneIsAnErrorAndTheMenuStays() {
        Shop shop;
        shop.take("bearing pictures/steel.jpg");
        shop.pick("Stainless");
        QCOMPARE(shop.lastMessage().title, std::string("Run-time error '53'"));
        QCOMPARE(shop.inFront(), std::string(forms::kMainMenu));
        shop.pick("Broken");
        QCOMPARE(shop.lastMessage().title, std::string("Run-time error '481'"));
        QVERIFY(shop.lastMessage().prompt.starts_with("Invalid picture: "));
        QCOMPARE(shop.inFront(), std::string(forms::kMainMenu));
        shop.pick("Custom");
        QCOMPARE(shop.text(), QString("Made for you."));
    }

    void withoutItsFileTheMenuHasTwoLinesThatTellTheFault() {
        Program program;
        giveInformation(program);
        program.take("bearing pictures");
        program.screens.show(forms::kMainMenu);
        for (const char* const line : {"Metric Series", "Custom"}) {
            program.control<QAction>(forms::kMainMenu, line).trigger();
            QCOMPARE(program.lastMessage().title, std::string("Run-time error '53'"));
            QCOMPARE(program.inFront(), std::string(forms::kMainMenu));
        }
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::Form7Test)
#include "Form7Test.moc"
