#include <filesystem>

#include "screens/Program.h"
#include "support/FakeProgram.h"
#include "support/FaultOf.h"

namespace norlaplan::testing {
namespace {

/// A document whose name a shell would take for much else.
struct Desk {
    Desk() { files.write(name, "slides"); }
    std::filesystem::path document() const { return files.path() / name; }
    std::string named() const { return "<" + document().string() + ">"; }

    const std::string name = "a b'; $(touch x) \"&.pps";
    TemporaryFolder files;
};

/// What a show's end tells: -1 while it runs, 0 for a good end, else the fault.
struct Told {
    int fault = -1;
    OfficePort::Ended note() {
        return
            [this](const std::optional<RuntimeError>& failure) { fault = failure ? failure->number() : 0; };
    }
};

void codesAndFaults(bool opener) {
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("fault");
    QTest::newRow("done") << 0 << 0;
    QTest::newRow("failed") << 1 << 31024;
    QTest::newRow("two") << 2 << (opener ? 53 : 31024);
    QTest::newRow("three") << 3 << (opener ? 429 : 31024);
    QTest::newRow("four") << 4 << 31024;
}

}  // namespace

/// The desktop's office program, with programs of the test's own in its place.
class OfficeTest : public QObject {
    Q_OBJECT

  private slots:
    void aShowRunsWhileThisProgramGoesOn() {
        const Desk desk;
        const std::string gate = (desk.files.path() / "gate").string();
        const FakeProgram fake("soffice", 0, "while [ ! -e '" + gate + "' ]; do :; done");
        Told told;
        DesktopOffice().startShow(desk.document(), told.note());
        QTest::qWait(100);
        QCOMPARE(told.fault, -1);
        desk.files.write("gate", "");
        QTRY_COMPARE(told.fault, 0);
        QCOMPARE(fake.told(), "<--show>" + desk.named());
        QCOMPARE(desk.files.read(desk.name), std::string("slides"));
    }

    void howTheOfficeProgramEndsTellsTheFault_data() { codesAndFaults(false); }
    void howTheOfficeProgramEndsTellsTheFault() {
        QFETCH(int, code);
        QFETCH(int, fault);
        const Desk desk;
        const FakeProgram fake("libreoffice", code);
        Told told;
        DesktopOffice().startShow(desk.document(), told.note());
        QTRY_COMPARE(told.fault, fault);
    }

    void aCrashedOfficeProgramCannotShow() {
        const Desk desk;
        const FakeProgram fake("soffice", 0, "kill -9 $$");
        Told told;
        DesktopOffice().startShow(desk.document(), told.note());
        QTRY_COMPARE(told.fault, 31024);
    }

    void withoutAnOfficeProgramTheDesktopOpensTheShow_data() { codesAndFaults(true); }
    void withoutAnOfficeProgramTheDesktopOpensTheShow() {
        QFETCH(int, code);
        QFETCH(int, fault);
        const Desk desk;
        const FakeProgram fake("xdg-open", code);
        Told told;
        DesktopOffice().startShow(desk.document(), told.note());
        QTRY_COMPARE(told.fault, fault);
        QCOMPARE(fake.told(), desk.named());
    }

    void withoutAnyProgramTheFaultIs429() {
        const Desk desk;
        const FakeProgram fake("soffice");
        fake.remove();
        Told told;
        QCOMPARE(faultOf([&] { DesktopOffice().startShow(desk.document(), told.note()); }), 429);
        QCOMPARE(faultOf([&] { DesktopOffice().open(desk.document()); }), 429);
        QTest::qWait(50);
        QCOMPARE(told.fault, -1);
    }

    void aMissingDocumentIsTheFault53AndNothingStarts() {
        const FakeProgram fake("soffice");
        Told told;
        QCOMPARE(faultOf([&] { DesktopOffice().startShow("/nowhere/a.pps", told.note()); }), 53);
        QCOMPARE(faultOf([&] { DesktopOffice().open("/nowhere/a.xls"); }), 53);
        QTest::qWait(50);
        QCOMPARE(fake.told(), std::string());
        QCOMPARE(told.fault, -1);
    }

    void aDocumentOpensInTheOfficeProgramAndStays() {
        const Desk desk;
        const FakeProgram fake("soffice", 7);
        DesktopOffice().open(desk.document());
        QTRY_COMPARE(fake.told(), desk.named());
    }

    void withoutAnOfficeProgramTheDesktopOpensTheDocument_data() { codesAndFaults(true); }
    void withoutAnOfficeProgramTheDesktopOpensTheDocument() {
        QFETCH(int, code);
        QFETCH(int, fault);
        const Desk desk;
        const FakeProgram fake("xdg-open", code);
        QCOMPARE(faultOf([&] { DesktopOffice().open(desk.document()); }), fault);
        QCOMPARE(fake.told(), desk.named());
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::OfficeTest)
#include "OfficeTest.moc"
