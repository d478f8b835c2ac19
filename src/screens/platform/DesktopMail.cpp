#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include "numbers/RuntimeError.h"
#include "screens/BusyPointer.h"
#include "screens/platform/QtPorts.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

/// A mail program that runs for longer than this has come up: some stay until their window is closed.
constexpr int kComingUpMs = 10000;

// What `xdg-email` ends with.
constexpr int kFileMissing = 2, kToolMissing = 3;

[[noreturn]] void raiseEnd(int code) {
    if (code == kFileMissing) raise(fault::kFileNotFound);
    if (code == kToolMissing) raise(fault::kNoSuchProgram);
    throw RuntimeError(fault::kAutomation, runtimeErrorText(fault::kAutomation) +
                                               ": the mail program ended with code " + std::to_string(code));
}

}  // namespace

void DesktopMail::createApplication() {
    program_ = QStandardPaths::findExecutable(QStringLiteral("xdg-email")).toStdString();
    if (program_.empty()) raise(fault::kNoSuchProgram);
}

void DesktopMail::createItem(int) {
    subject_.clear();
    file_.clear();
}

void DesktopMail::attach(const MailAttachment& attachment) {
    if (!std::filesystem::exists(attachment.file)) raise(fault::kFileNotFound);
    // The mail program has another current folder than this one.
    file_ = std::filesystem::absolute(attachment.file);
}

void DesktopMail::setSubject(const std::string& subject) {
    subject_ = subject;
}

void DesktopMail::display() {
    const BusyPointer busy;
    QStringList arguments = {QStringLiteral("--subject"), QString::fromStdString(subject_)};
    if (!file_.empty()) arguments << QStringLiteral("--attach") << QString::fromStdString(file_.string());

    // Nobody owns it: it must not be killed when this program ends before it.
    auto* const process = new QProcess;
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setInputChannelMode(QProcess::ManagedInputChannel);
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    int code = 0;
    bool running = true;
    QEventLoop wait;
    QObject::connect(process, &QProcess::finished, &wait, [&](int ended, QProcess::ExitStatus status) {
        code = status == QProcess::NormalExit ? ended : -1;
        running = false;
        wait.quit();
    });
    process->start(QString::fromStdString(program_), arguments);
    process->closeWriteChannel();
    if (!process->waitForStarted()) {
        process->deleteLater();
        raise(fault::kNoSuchProgram);
    }
    QTimer::singleShot(kComingUpMs, &wait, &QEventLoop::quit);
    if (running) wait.exec(QEventLoop::ExcludeUserInputEvents);
    if (code != 0) raiseEnd(code);
}

}  // namespace norlaplan
