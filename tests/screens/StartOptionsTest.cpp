#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QtTest>
#include <vector>

#include "screens/StartOptions.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {
namespace {

bool asks(std::vector<std::string> words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    return asksForText(static_cast<int>(pointers.size()), pointers.data());
}

/// The words behind the program's name, as StartOptions has them.
StartOptions read(QStringList words) {
    words.prepend("norlaplan");
    return readStartOptions(words);
}

class StartOptionsTest : public QObject {
    Q_OBJECT

  private slots:
    void helpAndVersionNeedNoDisplay() {
        for (const char* const word : {"--help", "-h", "--help-all", "--version", "-v"}) {
            QVERIFY2(asks({"norlaplan", word}), word);
            QVERIFY2(asks({"norlaplan", "--program-folder", "/tmp", word}), word);
            QVERIFY2(!asks({word}), "the first word is the program's name");
        }
        QVERIFY(!asks({"norlaplan"}));
        for (const char* const word : {"--helpful", "help", "-x", "--program-folder", ""})
            QVERIFY2(!asks({"norlaplan", word}), word);
    }

    void withoutWordsTheFolderIsTheUsualOne() {
        const StartOptions options = read({});
        QCOMPARE(options.programFolder, QString());
        QCOMPARE(options.fault, QString());
        // The program's own folder, where no installed one is.
        QCOMPARE(options.folder().root().string(),
                 QDir(QCoreApplication::applicationDirPath()).absolutePath().toStdString());
    }

    void theFolderIsTakenInBothSpellings() {
        const TemporaryFolder files;
        const QString path = QString::fromStdString(files.path().string());
        for (const QStringList& words :
             {QStringList{"--program-folder", path}, QStringList{"--program-folder=" + path}}) {
            const StartOptions options = read(words);
            QCOMPARE(options.fault, QString());
            QCOMPARE(options.programFolder, path);
            QCOMPARE(options.folder().root().string(), files.path().string());
        }
    }

    void aFolderIsTheSameWhereverTheProgramGoesLater() {
        const TemporaryFolder files;
        const QString before = QDir::currentPath();
        QDir::setCurrent(QString::fromStdString(files.path().parent_path().string()));
        const StartOptions options =
            read({"--program-folder", QString::fromStdString(files.path().filename().string())});
        const std::filesystem::path folder = options.folder().root();
        QDir::setCurrent(before);
        QCOMPARE(options.fault, QString());
        QVERIFY(folder.is_absolute());
        QVERIFY(std::filesystem::equivalent(folder, files.path()));
    }

    void whatIsWrongWithTheWordsIsTold() {
        const TemporaryFolder files;
        const QString path = QString::fromStdString(files.path().string());
        QCOMPARE(read({"--program-folder", "/not/there"}).fault, QString("There is no folder '/not/there'."));
        QCOMPARE(read({"--program-folder", ""}).fault, QString("There is no folder ''."));
        QCOMPARE(read({"sheet.rtf"}).fault, QString("Unexpected argument 'sheet.rtf'."));
        QCOMPARE(read({"--program-folder", path, "one", "two"}).fault, QString("Unexpected argument 'one'."));
        QVERIFY(read({"--nothing"}).fault.contains("nothing"));
        QVERIFY(!read({"--program-folder"}).fault.isEmpty());
    }

    void theProgramHasItsName() {
        nameProgram();
        QCOMPARE(QCoreApplication::applicationName(), QString("norlaplan"));
        QCOMPARE(QCoreApplication::applicationVersion(), QString("1.00"));
        QCOMPARE(QGuiApplication::desktopFileName(), QString("com.varden.norlaplan"));
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::StartOptionsTest)
#include "StartOptionsTest.moc"
