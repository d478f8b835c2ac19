#include <QByteArray>
#include <QStringList>

#include <gtest/gtest.h>

#include "paint/NoRuntimeFolder.h"

namespace norlaplan {
namespace {

QStringList told;

void hear(QtMsgType, const QMessageLogContext&, const QString& text) {
    told << text;
}

/// What the toolkit says comes here, and TMPDIR is as it was at the end.
class ARuntimeFolder : public ::testing::Test {
  protected:
    ARuntimeFolder() : temporary_(qgetenv("TMPDIR")), wasSet_(qEnvironmentVariableIsSet("TMPDIR")) {
        told.clear();
        before_ = qInstallMessageHandler(&hear);
    }
    ~ARuntimeFolder() override {
        qInstallMessageHandler(before_);
        wasSet_ ? qputenv("TMPDIR", temporary_) : qunsetenv("TMPDIR");
    }

  private:
    QByteArray temporary_;
    bool wasSet_;
    QtMessageHandler before_ = nullptr;
};

TEST_F(ARuntimeFolder, CannotBeMadeMeanwhile) {
    qputenv("TMPDIR", "/tmp");
    const NoRuntimeFolder none;
    EXPECT_EQ(qgetenv("TMPDIR"), "/dev/null") << "a file, in which no folder can be";
}

TEST_F(ARuntimeFolder, ChangesNothingForWhatComesLater) {
    for (const char* const folder : {"/tmp", ""}) {
        qputenv("TMPDIR", folder);
        { const NoRuntimeFolder none; }
        EXPECT_EQ(qgetenv("TMPDIR"), folder);
        EXPECT_TRUE(qEnvironmentVariableIsSet("TMPDIR"));
    }
    qunsetenv("TMPDIR");
    { const NoRuntimeFolder none; }
    EXPECT_FALSE(qEnvironmentVariableIsSet("TMPDIR"));
}

TEST_F(ARuntimeFolder, IsLookedForInSilenceAndAllElseIsHeard) {
    {
        const NoRuntimeFolder none;
        qWarning("QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to '/dev/null/runtime-user'");
        qWarning("QFont: no family has this name");
        qWarning("No QStandardPaths: of another");
    }
    EXPECT_EQ(told, QStringList({"QFont: no family has this name", "No QStandardPaths: of another"}));
    qWarning("QStandardPaths: later");
    EXPECT_EQ(told.size(), 3) << "afterwards everything is heard";
}

}  // namespace
}  // namespace norlaplan
