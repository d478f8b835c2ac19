#pragma once

#include <vector>

#include "state/DesktopPort.h"

namespace norlaplan::testing {

class RecordingDesktop : public DesktopPort {
  public:
    bool hasProgram = true;
    std::vector<std::filesystem::path> opened;
    bool open(const std::filesystem::path& path) override {
        opened.push_back(path);
        return hasProgram;
    }
};

}  // namespace norlaplan::testing
