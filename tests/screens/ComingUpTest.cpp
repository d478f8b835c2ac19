#include <QtTest>

#include "numbers/RuntimeError.h"
#include "screens/platform/ComingUp.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {
namespace {

/// What the shell ends with, as codeWhenComingUp tells it.
int codeOf(const QString& script, const QStringList& words = {}) {
    return codeWhenComingUp("/bin/sh", QStringList{"-c", script, "sh"} + words);
}

/// Programs that ComingUp starts and that end soon.
class ComingUpTest : public QObject {
    Q_OBJECT

  private slots:
    void tellsTheCodeThatAProgramEndsWith() {
        for (const int code : {0, 1, 7, 255})
            QCOMPARE(codeOf(QString("exit %1").arg(code)), code);
        QCOMPARE(codeOf("sleep 0.3; exit 5"), 5);
    }

    void tellsACrashAsMinusOne() { QCOMPARE(codeOf("kill -9 $$"), -1); }

    void aProgramThatIsNotThereIsFault429() {
        QCOMPARE(faultOf([] { codeWhenComingUp("/not/there/at/all", {}); }), 429);
        QCOMPARE(faultOf([] { codeWhenComingUp("/", {}); }), 429);
    }

    void theWordsComeAsTheyAre() {
        const TemporaryFolder files;
        const QString out = QString::fromStdString((files.path() / "out").string());
        QCOMPARE(
            codeOf("printf '%s|' \"$@\" > '" + out + "'", {"two words", "", "$HOME", "\"quoted\"", "ümlaut"}),
            0);
        QCOMPARE(files.read("out"), std::string("two words||$HOME|\"quoted\"|ümlaut|"));
    }

    void thereIsNothingToRead() {
        // Who reads what is typed meets its end at once, and waits for nobody.
        QCOMPARE(codeOf("if read line; then exit 8; else exit 9; fi"), 9);
    }

    void anEarlierProgramIsForgottenByTheNext() {
        QCOMPARE(codeOf("exit 3"), 3);
        QCOMPARE(codeOf("exit 0"), 0);
        QCOMPARE(faultOf([] { codeWhenComingUp("/not/there/at/all", {}); }), 429);
        QCOMPARE(codeOf("exit 4"), 4);
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::ComingUpTest)
#include "ComingUpTest.moc"
