#include "screens/StartOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "state/InstalledFolder.h"

namespace norlaplan {
namespace {

constexpr const char* kFolderOption = "program-folder";

void declareOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(QStringLiteral("NORLAPLAN-MM: thin-section ball bearings"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({QString::fromLatin1(kFolderOption),
                      QStringLiteral("Folder of the catalog and settings; default: that of the program"),
                      QStringLiteral("DIR")});
}

}  // namespace

void nameProgram() {
    QCoreApplication::setApplicationName(QStringLiteral("norlaplan"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.00"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.varden.norlaplan"));
}

bool asksForText(int count, char** words) {
    return std::any_of(words + 1, words + count, [](std::string_view word) {
        return word == "--help" || word == "-h" || word == "--help-all" || word == "--version" ||
               word == "-v";
    });
}

void printText() {
    QCommandLineParser parser;
    declareOptions(parser);
    parser.process(QCoreApplication::arguments());
    std::exit(EXIT_SUCCESS);
}

ProgramFolder StartOptions::folder() const {
    return programFolder.isEmpty() ? usualProgramFolder()
                                   : ProgramFolder(QDir(programFolder).absolutePath().toStdString());
}

StartOptions readStartOptions(const QStringList& words) {
    QCommandLineParser parser;
    declareOptions(parser);
    StartOptions options;
    if (!parser.parse(words)) {
        options.fault = parser.errorText();
        return options;
    }
    options.programFolder = parser.value(QString::fromLatin1(kFolderOption));
    const QStringList others = parser.positionalArguments();
    if (!others.isEmpty())
        options.fault = QStringLiteral("Unexpected argument '%1'.").arg(others.first());
    else if (parser.isSet(QString::fromLatin1(kFolderOption)) &&
             (options.programFolder.isEmpty() || !QDir(options.programFolder).exists()))
        options.fault = QStringLiteral("There is no folder '%1'.").arg(options.programFolder);
    return options;
}

}  // namespace norlaplan
