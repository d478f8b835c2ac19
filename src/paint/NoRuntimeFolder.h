#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace norlaplan {

/// While it lives, the toolkit makes no folder for itself: where a session has none for what runs, an
/// application object that is made looks for one, makes it in the temporary folder and leaves it there.
/// Neither needs it. What the toolkit says of its search is dropped.
class NoRuntimeFolder {
  public:
    NoRuntimeFolder();
    ~NoRuntimeFolder();
    NoRuntimeFolder(const NoRuntimeFolder&) = delete;
    NoRuntimeFolder& operator=(const NoRuntimeFolder&) = delete;

  private:
    QByteArray temporary_;  ///< what TMPDIR was
    bool wasSet_;
};

}  // namespace norlaplan
