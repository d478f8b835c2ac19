#include <QApplication>
#include <QFileDialog>

#include "screens/platform/QtPorts.h"

namespace norlaplan {

std::optional<SaveChoice> QtSaveDialog::askWhereToSave(const SaveRequest& request) {
    QStringList filters;
    for (const FileFilter& filter : request.filters)
        filters << QString::fromStdString(filter.label);

    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(request.title),
                       QString::fromStdString(request.folder.string()));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(filters);
    const auto useExtension = [&](const QString& filter) {
        const auto at = filters.indexOf(filter);
        if (at < 0) return;
        // The chosen filter's own extension, "*.bmp" without its star; the first one is the default.
        const std::string& pattern = request.filters[static_cast<std::size_t>(at)].pattern;
        dialog.setDefaultSuffix(at == 0 ? QString::fromStdString(request.defaultExtension)
                                        : QString::fromStdString(pattern.substr(1)));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useExtension);
    useExtension(filters.value(0));
    dialog.selectFile(QString::fromStdString(request.name));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;

    const auto index = filters.indexOf(dialog.selectedNameFilter());
    return SaveChoice{dialog.selectedFiles().value(0).toStdString(),
                      index < 0 ? 1 : static_cast<int>(index) + 1};
}

}  // namespace norlaplan
