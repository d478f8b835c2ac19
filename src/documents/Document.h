#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "state/Drawing.h"
#include "state/Ports.h"

namespace norlaplan {

/// What a report, a graph or a sheet is to those who take it: the printer, a preview, the save dialog and the
/// command line. Its texts and drawings are made when they are asked for, from what it was made of, which
/// must still be there.
struct Document {
    std::string title;              ///< names it at the printer
    std::string fileName;           ///< proposed when it is saved
    std::string folder = "\\save";  ///< of the program folder, where the save dialog starts
    std::string saveTitle = "Save Results As";
    std::string defaultExtension = ".rtf";
    /// The kinds of file that it can be saved as: "*.rtf", "*.bmp". The first is the usual one.
    std::vector<FileFilter> filters = {{"Rich Text Files (*.rtf)", "*.rtf"}};
    std::function<std::string()> rtf;  ///< none: it is printed and drawn only
    Drawing pages;                     ///< what is printed, previewed and written as PDF
    /// What a bitmap shows where that isn't the pages, and which part of it; all of it when none is said.
    std::optional<Drawing> picture;
    std::optional<PageBox> pictureArea;

    const Drawing& image() const { return picture ? *picture : pages; }
};

}  // namespace norlaplan
