#include <QDesktopServices>
#include <QUrl>

#include "screens/platform/QtPorts.h"

namespace norlaplan {

bool QtDesktop::open(const std::filesystem::path& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path.string())));
}

}  // namespace norlaplan
