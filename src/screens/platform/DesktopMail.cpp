#include <QStandardPaths>

#include "numbers/RuntimeError.h"
#include "screens/platform/ComingUp.h"
#include "screens/platform/QtPorts.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

// What `xdg-email` ends with.
constexpr int kFileMissing = 2, kToolMissing = 3;

[[noreturn]] void raiseEnd(int code, const std::filesystem::path& file) {
    if (code == kFileMissing) raiseFile(fault::kFileNotFound, file);
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
    std::error_code unreadable;
    if (!std::filesystem::exists(attachment.file, unreadable))
        raiseFile(fault::kFileNotFound, attachment.file);
    // The mail program has another current folder than this one.
    file_ = std::filesystem::absolute(attachment.file);
}

void DesktopMail::setSubject(const std::string& subject) {
    subject_ = subject;
}

void DesktopMail::display() {
    QStringList arguments = {QStringLiteral("--subject"), QString::fromStdString(subject_)};
    if (!file_.empty()) arguments << QStringLiteral("--attach") << QString::fromStdString(file_.string());
    const int code = codeWhenComingUp(QString::fromStdString(program_), arguments);
    if (code != 0) raiseEnd(code, file_);
}

}  // namespace norlaplan
