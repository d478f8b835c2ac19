#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include "screens/platform/ComingUp.h"
#include "screens/platform/QtPorts.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

// What `xdg-open` ends with.
constexpr int kFileMissing = 2, kToolMissing = 3;

QString officeProgram() {
    for (const char* const name : {"soffice", "libreoffice"}) {
        if (QString found = QStandardPaths::findExecutable(QString::fromUtf8(name)); !found.isEmpty())
            return found;
    }
    return {};
}

QString desktopsOpener() {
    QString found = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (found.isEmpty()) raise(fault::kNoSuchProgram);
    return found;
}

/// What the end of the opener or of the office program says about the document.
std::optional<RuntimeError> failureOf(int code, bool opener, const std::filesystem::path& document) {
    if (code == 0) return std::nullopt;
    if (opener && code == kFileMissing) return fileFault(fault::kFileNotFound, document);
    if (opener && code == kToolMissing) return RuntimeError(fault::kNoSuchProgram);
    return RuntimeError(fault::kNoOfficeLink, "The office program ended with code " + std::to_string(code));
}

QString argumentOf(const std::filesystem::path& document) {
    std::error_code unreadable;
    if (!std::filesystem::exists(document, unreadable)) throw fileFault(fault::kFileNotFound, document);
    // The office program has another current folder than this one.
    return QString::fromStdString(std::filesystem::absolute(document).string());
}

}  // namespace

void DesktopOffice::startShow(const std::filesystem::path& show, Ended ended) {
    const QString file = argumentOf(show), office = officeProgram();
    const bool opener = office.isEmpty();
    const QString program = opener ? desktopsOpener() : office;
    const QStringList arguments = opener ? QStringList{file} : QStringList{QStringLiteral("--show"), file};

    // Nobody owns it: a show that runs must not be killed when this program ends before it.
    auto* const process = new QProcess;
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    QObject::connect(
        process, &QProcess::finished, qApp,
        [process, ended = std::move(ended), opener, show](int code, QProcess::ExitStatus status) {
            process->deleteLater();
            ended(failureOf(status == QProcess::NormalExit ? code : -1, opener, show));
        });
    process->start(program, arguments, QIODevice::ReadOnly);
    if (process->waitForStarted()) return;
    process->deleteLater();
    raise(fault::kNoSuchProgram);
}

void DesktopOffice::open(const std::filesystem::path& document) {
    const QString file = argumentOf(document), office = officeProgram();
    if (office.isEmpty()) {
        const int code = codeWhenComingUp(desktopsOpener(), {file});
        if (const auto failure = failureOf(code, true, document)) throw RuntimeError(*failure);
        return;
    }
    if (!QProcess::startDetached(office, {file})) raise(fault::kNoSuchProgram);
}

}  // namespace norlaplan
