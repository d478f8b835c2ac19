#include "paint/NoRuntimeFolder.h"

#include <QString>

namespace norlaplan {
namespace {

constexpr const char* kTemporary = "TMPDIR";

QtMessageHandler before = nullptr;

void tellOther(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QLatin1String("QStandardPaths:"))) before(type, context, text);
}

}  // namespace

NoRuntimeFolder::NoRuntimeFolder()
    : temporary_(qgetenv(kTemporary)), wasSet_(qEnvironmentVariableIsSet(kTemporary)) {
    before = qInstallMessageHandler(tellOther);
    // In what is no folder none can be made.
    qputenv(kTemporary, "/dev/null");
}

NoRuntimeFolder::~NoRuntimeFolder() {
    if (wasSet_)
        qputenv(kTemporary, temporary_);
    else
        qunsetenv(kTemporary);
    qInstallMessageHandler(before);
}

}  // namespace norlaplan
