#include <QApplication>
#include <QFileDialog>
#include <algorithm>
#include <system_error>

#include "screens/platform/QtPorts.h"

namespace norlaplan {
namespace {

/// The filter, counted from 1, whose extension the name has; otherwise the chosen one. Who types "sheet.bmp"
/// wants a picture, whatever the filter says.
int filterOf(const QString& name, const SaveRequest& request, int chosen) {
    for (std::size_t i = 0; i < request.filters.size(); ++i) {
        const QString extension = QString::fromStdString(request.filters[i].pattern.substr(1));
        if (name.endsWith(extension, Qt::CaseInsensitive)) return static_cast<int>(i) + 1;
    }
    return chosen;
}

/// The user's last folder, unless it has gone since.
std::filesystem::path folderFor(const SaveRequest& request, const std::filesystem::path& last) {
    std::error_code gone;
    return std::filesystem::is_directory(last, gone) ? last : request.folder;
}

}  // namespace

std::optional<SaveChoice> QtSaveDialog::askWhereToSave(const SaveRequest& request) {
    QStringList filters;
    for (const FileFilter& filter : request.filters)
        filters << QString::fromStdString(filter.label);

    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(request.title),
                       QString::fromStdString(folderFor(request, lastFolder_).string()));
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

    const int chosen = std::max(1, static_cast<int>(filters.indexOf(dialog.selectedNameFilter())) + 1);
    const QString name = dialog.selectedFiles().value(0);
    lastFolder_ = std::filesystem::path(name.toStdString()).parent_path();
    return SaveChoice{name.toStdString(), filterOf(name, request, chosen)};
}

}  // namespace norlaplan
