#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <set>

#include "screens/Everything.h"
#include "screens/Theme.h"

namespace norlaplan::testing {
namespace {

/// What is cut off in the form, or an empty text. On a page that scrolls everything has its room.
QString cutOff(const Form& form) {
    for (const QLabel* const label : form.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty()) continue;
        const int wanted =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        const bool narrow = !label->wordWrap() && label->width() < label->sizeHint().width();
        if (narrow || label->height() < wanted) return "label " + label->objectName() + " " + label->text();
    }
    for (const QAbstractButton* const button : form.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        const QSize wanted = button->minimumSizeHint();
        if (button->width() < wanted.width() || button->height() < wanted.height())
            return "button " + button->objectName();
    }
    return {};
}

/// The name of a visible button that is neither within the window nor on the page that scrolls.
QString outOfReach(const Form& form) {
    const auto* const scroll = form.findChild<QScrollArea*>();
    for (const QAbstractButton* const button : form.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || (scroll != nullptr && scroll->isAncestorOf(button))) continue;
        const QRect place(button->mapTo(&form, QPoint(0, 0)), button->size());
        if (!form.rect().contains(place)) return button->objectName();
    }
    return {};
}

void formsAndRooms() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("room");
    // What screens from 1024x768 up have in points at 100 % and at 200 %, less a task bar.
    for (const QSize room :
         {QSize(512, 384), QSize(640, 512), QSize(960, 520), QSize(1024, 740), QSize(1920, 1040)}) {
        for (const FormEntry& entry : formRegistry()) {
            QTest::addRow("%s %dx%d", entry.name.text, room.width(), room.height())
                << entry.name.text << room;
        }
    }
}

class WindowsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { theme::apply(); }

    void everyFormFitsTheRoomAndCutsNothingOff_data() { formsAndRooms(); }
    void everyFormFitsTheRoomAndCutsNothingOff() {
        QFETCH(QString, name);
        QFETCH(QSize, room);
        Everything program;
        const QByteArray text = name.toUtf8();
        Form& form = program.open(FormName(text.constData()));
        QCOMPARE(form.objectName(), name);
        form.prepareToShow(QRect(QPoint(0, 0), room));
        QApplication::processEvents();
        QVERIFY2(form.width() <= room.width() && form.height() <= room.height(),
                 qPrintable(QString("%1x%2").arg(form.width()).arg(form.height())));
        QCOMPARE(cutOff(form), QString());
        QCOMPARE(outOfReach(form), QString());
    }

    void formsShareTheirWidth() {
        Everything program;
        const QRect room(0, 0, 1600, 1000);
        std::set<int> widths;
        for (const FormName name :
             {forms::kStart, forms::kMainMenu, forms::kTextViewer, forms::kPartNumber, forms::kStyle,
              forms::kSizes, forms::kLoads, forms::kResults, forms::kLife}) {
            Form& form = program.screens.form(name);
            form.prepareToShow(room);
            widths.insert(form.width());
        }
        QVERIFY2(widths.size() <= 2, qPrintable(QString::number(widths.size())));
    }

    void aWindowShrinksBackWhenAFrameHides() {
        Everything program;
        Form& form = program.open(forms::kPartNumber);
        form.prepareToShow(QRect(0, 0, 1600, 1200));
        program.type(forms::kPartNumber, "Text1", "K19013X");
        QApplication::processEvents();
        const int before = form.height();
        QTest::keyClicks(&program.control<QWidget>(forms::kPartNumber, "Text1"), "Z");
        QApplication::processEvents();
        QVERIFY(form.height() > before);
        program.type(forms::kPartNumber, "Text1", "K19013X");
        QApplication::processEvents();
        QCOMPARE(form.height(), before);
    }

    void aSizeThatTheUserGaveIsKept() {
        Everything program;
        Form& form = program.open(forms::kSizes);
        form.resize(700, 500);
        program.screens.showAlone(forms::kMainMenu);
        program.screens.show(forms::kSizes);
        QCOMPARE(form.size(), QSize(700, 500));
    }

    void theFooterStandsInOneOrderOnEveryForm() {
        for (const FormEntry& entry : formRegistry()) {
            if (std::string(entry.name) == "Form17") continue;
            Everything program;
            Form& form = program.open(entry.name);
            form.prepareToShow(QRect(0, 0, 1600, 1000));
            QApplication::processEvents();
            int menu = -1, previous = -1, menuTop = -1;
            for (const QPushButton* const button : form.findChildren<QPushButton*>()) {
                const QPoint place = button->mapTo(&form, QPoint(0, 0));
                if (button->text() == "&Main Menu") menu = place.x(), menuTop = place.y();
                if (button->text().endsWith("&Previous")) previous = place.x();
            }
            if (menu < 0) continue;
            QVERIFY2(menu == theme::kMargin, entry.name.text);
            for (const QPushButton* const button : form.findChildren<QPushButton*>()) {
                const QPoint place = button->mapTo(&form, QPoint(0, 0));
                if (!button->isVisible() || place.y() != menuTop) continue;
                QVERIFY2(place.x() >= menu, qPrintable(button->text()));
                if (previous >= 0 && place.x() != menu)
                    QVERIFY2(place.x() >= previous, qPrintable(button->text()));
            }
        }
    }

    void theProgramHasAnIconInEverySize() {
        const QIcon icon = QApplication::windowIcon();
        for (const int size : {16, 32, 64}) {
            const QImage picture = icon.pixmap(QSize(size, size), 1.0).toImage();
            QCOMPARE(picture.width(), size);
            // The bore and the corners are open, the ring at its top is not.
            QCOMPARE(picture.pixelColor(size / 2, size / 2).alpha(), 0);
            QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
            QCOMPARE(picture.pixelColor(size / 2, size / 8).alpha(), 255);
        }
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::WindowsTest)
#include "WindowsTest.moc"
