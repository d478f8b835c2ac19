#pragma once

#include <functional>
#include <string>

#include "screens/Services.h"

namespace norlaplan {

/// Asks where a report goes, proposing `name` in the program's save folder, and writes it there as RTF.
/// Nothing happens when the user cancels. The path becomes the last saved file. Errors as those of the
/// writing.
void saveReport(const Services& services, const std::string& title, const std::string& name,
                const std::function<std::string()>& rtf);

}  // namespace norlaplan
