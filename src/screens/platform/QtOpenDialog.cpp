#include <QApplication>
#include <QFileDialog>

#include "screens/platform/QtPorts.h"

namespace norlaplan {

std::optional<std::filesystem::path> QtOpenDialog::askWhatToOpen(const OpenRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(request.title),
                       QString::fromStdString(request.folder.string()));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(QString::fromStdString(request.filter.label));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return std::filesystem::path(dialog.selectedFiles().value(0).toStdString());
}

}  // namespace norlaplan
