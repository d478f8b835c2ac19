#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>
#include <QtTest>
#include <array>
#include <memory>

#include "screens/BallGrid.h"
#include "screens/ColourButton.h"
#include "screens/EqualSigns.h"
#include "screens/FitLegend.h"
#include "screens/FormBuilder.h"
#include "screens/GraphPicture.h"
#include "screens/MemoField.h"
#include "screens/Picture.h"
#include "screens/SideTabs.h"
#include "screens/StepMark.h"
#include "screens/Theme.h"
#include "state/ProgramState.h"
#include "support/Ink.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {
namespace {

const QColor kAccent(190, 84, 0), kGreen(0, 122, 42);

QImage imageOf(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// A window in front, with one control.
template <typename Control>
struct InFront {
    template <typename... Arguments>
    explicit InFront(Arguments&&... arguments) : control(std::forward<Arguments>(arguments)...) {
        auto* const column = new QVBoxLayout(&window);
        column->addWidget(&control);
        column->addWidget(&other);
        window.show();
        window.activateWindow();
        other.setFocus();
    }
    ~InFront() { control.setParent(nullptr), other.setParent(nullptr); }

    QWidget window;
    Control control;
    QLineEdit other;
};

/// Whether all pixels that lie so far from the edge of a picture have that colour.
bool isRing(const QImage& picture, int inset, const QColor& colour) {
    const QRect ring = picture.rect().adjusted(inset, inset, -inset, -inset);
    for (int x = ring.left(); x <= ring.right(); ++x) {
        for (const int y : {ring.top(), ring.bottom()}) {
            if (picture.pixel(x, y) != colour.rgb()) return false;
        }
    }
    for (int y = ring.top(); y <= ring.bottom(); ++y) {
        for (const int x : {ring.left(), ring.right()}) {
            if (picture.pixel(x, y) != colour.rgb()) return false;
        }
    }
    return true;
}

/// The controls that the program draws itself: ColourButton, StepMark, GraphPicture, the samples of a
/// FitLegend ...
class SmallControlsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void aColourButtonIsItsColourInAFrameOfTwoPixels() {
        ColourButton button("Colour1", "The color of row 1");
        button.resize(40, 24);
        button.showColour(rgb(10, 200, 30));
        QCOMPARE(button.colour(), rgb(10, 200, 30));
        const QImage shown = imageOf(button);
        const QColor frame = button.palette().color(QPalette::Mid);
        QVERIFY(isRing(shown, 0, frame) && isRing(shown, 1, frame));
        for (int inset = 2; inset < 12; ++inset)
            QVERIFY2(isRing(shown, inset, QColor(10, 200, 30)), qPrintable(QString::number(inset)));
        QCOMPARE(button.accessibleName(), QString("The color of row 1"));
        QCOMPARE(button.toolTip(), QString("The color of row 1"));
        QCOMPARE(button.objectName(), QString("Colour1"));
    }

    void aColourButtonWithTheFocusIsFramedInTheAccent() {
        InFront<ColourButton> shown("Colour1", "A color");
        shown.control.setFocus();
        QTRY_VERIFY(shown.control.hasFocus());
        const QImage picture = imageOf(shown.control);
        QVERIFY(isRing(picture, 0, kAccent) && isRing(picture, 1, kAccent) && !isRing(picture, 2, kAccent));
    }

    void aColourButtonIsPressedByEnterAndSpaceAndNoOtherKey() {
        ColourButton button("Colour1", "A color");
        int pressed = 0;
        connect(&button, &QAbstractButton::clicked, this, [&] { ++pressed; });
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            const int before = pressed;
            QTest::keyClick(&button, key);
            QCOMPARE(pressed, before + 1);
        }
        QTest::keyClick(&button, Qt::Key_A);
        QCOMPARE(pressed, 3);
    }

    void aStepMarkIsItsNumberInARingUntilItIsDone() {
        StepMark step("SizesStep", 4);
        QCOMPARE(step.objectName(), QString("SizesStep"));
        QCOMPARE(step.accessibleName(), QString("Step 4"));
        QVERIFY(!step.isDone());
        const QImage open = imageOf(step);
        QCOMPARE(open.size(), QSize(30, 42));
        // A ring of 27 pixels around the middle: from 7.5 to 34.5 down, from 1.5 to 28.5 across.
        const QColor ground = step.palette().color(QPalette::Window);
        QVERIFY(open.pixelColor(15, 7).lightness() < ground.lightness() - 60);
        QVERIFY(open.pixelColor(15, 34).lightness() < ground.lightness() - 60);
        QVERIFY(open.pixelColor(1, 21).lightness() < ground.lightness() - 60);
        QVERIFY(open.pixelColor(28, 21).lightness() < ground.lightness() - 60);
        QCOMPARE(open.pixelColor(15, 3), ground);
        QVERIFY2(!inkBox(open, QRect(9, 14, 12, 14)).isNull(), "a number");
        StepMark other("LoadsStep", 5);
        QVERIFY(imageOf(other) != open);

        step.setDone(true);
        QVERIFY(step.isDone());
        QCOMPARE(step.accessibleName(), QString("Step 4, done"));
        const QImage done = imageOf(step);
        // A green disc with a white tick, whose corner is at 0.44 and 0.70 of its square.
        QCOMPARE(done.pixelColor(15, 11), kGreen);
        QCOMPARE(done.pixelColor(15, 32), kGreen);
        QVERIFY(done.pixelColor(13, 26).lightness() > 200);
        other.setDone(true);
        QCOMPARE(imageOf(other), done);
        step.setDone(false);
        QCOMPARE(imageOf(step), open);
    }

    void aLegendShowsEachLineInItsColourBesideItsName() {
        const std::unique_ptr<QGroupBox> legend(fitLegend("Frame6"));
        QCOMPARE(legend->title(), QString("Legend"));
        legend->resize(legend->sizeHint());
        legend->show();
        const QColor ground(192, 192, 192);
        const std::array<std::pair<const char*, QColor>, 6> stated = {{{"Bearing bore", QColor(0, 0, 0)},
                                                                       {"High Temp", QColor(255, 0, 0)},
                                                                       {"Low Temp", QColor(0, 0, 255)},
                                                                       {"Room Temp", QColor(0, 255, 0)},
                                                                       {"Shaft", QColor(255, 0, 255)},
                                                                       {"Housing", QColor(0, 255, 255)}}};
        QPoint before(-1, -1);
        for (std::size_t i = 0; i < stated.size(); ++i) {
            const auto& [name, colour] = stated.at(i);
            auto* const sample = legend->findChild<QWidget*>(QString("Line%1").arg(i + 1));
            auto* const label = legend->findChild<QLabel*>(QString("Label%1").arg(i + 13));
            QCOMPARE(label->text(), QString(name));
            QCOMPARE(sample->accessibleName(), QString("Color of ") + name);
            const QImage picture = imageOf(*sample);
            // Two pixels high in the middle, as long as the sample.
            for (const int x : {0, picture.width() / 2, picture.width() - 1}) {
                QCOMPARE(picture.pixelColor(x, 0), ground);
                QCOMPARE(picture.pixelColor(x, picture.height() - 1), ground);
                QVERIFY2(picture.pixelColor(x, picture.height() / 2) == colour ||
                             picture.pixelColor(x, picture.height() / 2 - 1) == colour,
                         name);
            }
            QCOMPARE(picture.width(), 3 * picture.height());
            QVERIFY2(sample->geometry().right() < label->geometry().left(), name);
            QVERIFY2(std::abs(sample->geometry().center().y() - label->geometry().center().y()) <= 2, name);
            // Three of them side by side, then the next row.
            const QPoint place = sample->pos();
            QVERIFY2(i % 3 == 0 ? place.y() > before.y() : place.y() == before.y() && place.x() > before.x(),
                     name);
            before = place;
        }
        QCOMPARE(legend->findChild<QLabel*>("Label20")->text(),
                 QString("Temperature increasing to the right"));
    }

    void theColumnsOfABallGridShareTheWidthAsStated() {
        BallGrid grid("Grid1", "Balls of row 1");
        grid.showBalls(SolverState(), 1);
        grid.resize(2400, 300);
        grid.show();
        QApplication::processEvents();
        const std::array<int, 10> twips = {400, 800, 800, 700, 950, 950, 850, 850, 850, 850};
        const int width = grid.viewport()->width();
        // The last one takes what is left of the width.
        for (int column = 0; column < 9; ++column)
            QCOMPARE(grid.columnWidth(column), width * twips.at(static_cast<std::size_t>(column)) / 8000);
        QCOMPARE(grid.header()->length(), width);
    }

    void equalSignsStandUnderEachOther() {
        QLabel shorter("A = 1"), longer("Path Surface = 16AA"), none("No sign");
        const std::array<QLabel*, 3> labels = {&shorter, &longer, &none};
        alignEqualSigns(labels);
        const auto signOf = [](const QLabel& label) {
            const QString before = label.text().left(label.text().indexOf('=') + 1);
            return label.indent() + label.fontMetrics().horizontalAdvance(before);
        };
        QVERIFY(shorter.indent() > 0);
        QCOMPARE(longer.indent(), 0);
        QCOMPARE(none.indent(), 0);
        QVERIFY(std::abs(signOf(shorter) - signOf(longer)) <= 1);
        QCOMPARE(shorter.text(), QString("A = 1"));
    }

    void aMemoFieldShowsItsLinesAndIsLeftByTab() {
        InFront<MemoField> shown("Text5", "Remarks", 4);
        MemoField& memo = shown.control;
        QCOMPARE(memo.objectName(), QString("Text5"));
        QCOMPARE(memo.toolTip(), QString("Remarks"));
        QCOMPARE(memo.accessibleDescription(), QString("Remarks"));
        const int line = memo.fontMetrics().lineSpacing();
        QVERIFY(memo.minimumHeight() >= 4 * line && memo.minimumHeight() < 5 * line);
        memo.setFocus();
        QTRY_VERIFY(memo.hasFocus());
        QTest::keyClicks(&memo, "ab");
        QTest::keyClick(&memo, Qt::Key_X, Qt::AltModifier);
        QTest::keyClick(&memo, Qt::Key_Tab);
        QCOMPARE(memo.toPlainText(), QString("ab"));
        QVERIFY(shown.other.hasFocus());
    }

    void aPictureKeepsItsShapeInTheMiddleOfItsRoom() {
        const TemporaryFolder files;
        QImage plain(40, 20, QImage::Format_RGB32);
        plain.fill(QColor(200, 0, 0));
        QVERIFY(plain.save(QString::fromStdString((files.path() / "X-L.BMP").string()), "BMP"));
        Picture picture("Picture1", "A bearing", {480, 320});
        QCOMPARE(picture.sizeHint(), QSize(480, 320));
        QCOMPARE(picture.minimumSizeHint(), QSize(240, 160));
        QCOMPARE(picture.accessibleName(), QString("A bearing"));
        picture.showFile(ProgramFolder(files.path()), "\\X-L.BMP");
        const auto place = [&](int width, int height) {
            picture.resize(width, height);
            const QImage shown = imageOf(picture);
            QRect red;
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    if (shown.pixelColor(x, y) == QColor(200, 0, 0)) red |= QRect(x, y, 1, 1);
                }
            }
            return red;
        };
        // Twice as wide as high, whatever the room.
        QCOMPARE(place(200, 180), QRect(0, 40, 200, 100));
        QCOMPARE(place(300, 100), QRect(50, 0, 200, 100));
        picture.showFile(ProgramFolder(files.path()), "\\NONE.BMP");
        QVERIFY(place(200, 180).isNull());
        QVERIFY2(!inkBox(imageOf(picture)).isNull(), "it says that there is none");
        picture.showNothing();
        QVERIFY(inkBox(imageOf(picture)).isNull());
    }

    void aGraphPictureWithoutAGraphSaysWhyAndCannotBePressed() {
        GraphPicture picture("Picture2", "Axial graph", "Click here");
        picture.showWords("NO GRAPH");
        picture.resize(200, 100);
        QCOMPARE(picture.words(), QString("NO GRAPH"));
        QVERIFY(!picture.isEnabled());
        QCOMPARE(picture.accessibleName(), QString("Axial graph"));
        QCOMPARE(picture.accessibleDescription(), QString("Click here"));
        QCOMPARE(picture.toolTip(), QString("Click here"));
        const QImage shown = imageOf(picture);
        const QColor frame = picture.palette().color(QPalette::Active, QPalette::Mid);
        QVERIFY(isRing(shown, 0, frame) && isRing(shown, 1, Qt::white));
        const QRect words = inkBox(shown, QRect(2, 2, 196, 96));
        QVERIFY(std::abs(words.center().x() - 100) <= 2 && std::abs(words.center().y() - 50) <= 4);
        picture.showGraph({});
        QVERIFY(picture.isEnabled());
        QCOMPARE(picture.words(), QString());
        QCOMPARE(picture.cursor().shape(), Qt::PointingHandCursor);
        picture.showWords({});
        QCOMPARE(picture.cursor().shape(), Qt::ArrowCursor);
    }

    void sideTabsStandOneBelowTheOtherAsWideAsTheirIconAndName() {
        SideTabs tabs("Sections");
        for (const char* const name : {"User", "A much longer name"})
            tabs.addTab(new QWidget, QIcon(), name);
        tabs.show();
        const QTabBar& bar = *tabs.findChild<QTabBar*>("SectionsTabs");
        QCOMPARE(bar.accessibleName(), QString("Sections"));
        const QRect first = bar.tabRect(0), second = bar.tabRect(1);
        QCOMPARE(first.left(), second.left());
        QVERIFY(first.bottom() < second.top());
        QVERIFY2(second.width() > second.height(), "the names are read as any line");
        // Ten pixels before the icon and behind the name, eight between them.
        const int text = bar.fontMetrics().horizontalAdvance("A much longer name");
        QCOMPARE(second.width(), 10 + bar.iconSize().width() + 8 + text + 10);
        QCOMPARE(second.height(), std::max(bar.iconSize().height(), bar.fontMetrics().height()) + 16);
    }

    void aCaptionIsSpokenWithoutItsMarks() {
        using build::spokenCaption;
        QCOMPARE(spokenCaption("<< &Previous"), QString("Previous"));
        QCOMPARE(spokenCaption("&Next >>"), QString("Next"));
        QCOMPARE(spokenCaption("CLICK HERE          to see"), QString("CLICK HERE to see"));
    }

    void alignedValuesCanBeTakenAlongAndWhatIsHiddenKeepsItsRoom() {
        const std::unique_ptr<QLabel> value(build::valueLabel("Label8"));
        QVERIFY(value->textInteractionFlags() & Qt::TextSelectableByMouse);
        QVERIFY(value->textInteractionFlags() & Qt::TextSelectableByKeyboard);
        QCOMPARE(value->font().family(), QString("Liberation Mono"));
        QVERIFY(!value->sizePolicy().retainSizeWhenHidden());
        build::keepRoom(*value);
        QVERIFY(value->sizePolicy().retainSizeWhenHidden());
        build::keepRoom(*value, false);
        QVERIFY(!value->sizePolicy().retainSizeWhenHidden());
        QVERIFY(!value->font().bold());
        build::makeBold(*value);
        QVERIFY(value->font().bold());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::SmallControlsTest)
#include "SmallControlsTest.moc"
