#include "screens/platform/ComingUp.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include "numbers/RuntimeError.h"
#include "screens/BusyPointer.h"

namespace norlaplan {
namespace {

/// Some programs stay until their window is closed.
constexpr int kComingUpMs = 10000;

}  // namespace

int codeWhenComingUp(const QString& program, const QStringList& arguments) {
    const BusyPointer busy;
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
    process->start(program, arguments);
    process->closeWriteChannel();
    if (!process->waitForStarted()) {
        process->deleteLater();
        raise(fault::kNoSuchProgram);
    }
    QTimer::singleShot(kComingUpMs, &wait, &QEventLoop::quit);
    if (running) wait.exec(QEventLoop::ExcludeUserInputEvents);
    return code;
}

}  // namespace norlaplan
