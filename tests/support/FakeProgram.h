#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <filesystem>
#include <string>

#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// A program of our own under another's name, for as long as it lives the only one of that name that can be
/// found. It notes its arguments, each between two marks, and ends with a code.
class FakeProgram {
  public:
    explicit FakeProgram(const std::string& name, int code = 0, const std::string& before = "")
        : name_(name), pathBefore_(qgetenv("PATH")) {
        place_.write(name, "#!/bin/sh\nfor word in \"$@\"; do printf '<%s>' \"$word\"; done > '" +
                               (place_.path() / "told").string() + "'\n" + before + "\nexit " +
                               std::to_string(code) + "\n");
        std::filesystem::permissions(place_.path() / name, std::filesystem::perms::owner_all);
        hideAll();
    }
    ~FakeProgram() { qputenv("PATH", pathBefore_); }

    std::string told() const { return place_.read("told"); }
    void remove() const { std::filesystem::remove(place_.path() / name_); }
    /// No program can be found that isn't in this folder.
    void hideAll() const { qputenv("PATH", QByteArray::fromStdString(place_.path().string())); }

  private:
    std::string name_;
    TemporaryFolder place_;
    QByteArray pathBefore_;
};

}  // namespace norlaplan::testing
