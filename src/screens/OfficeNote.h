#pragma once

#include <QFrame>
#include <filesystem>

class QLineEdit;

namespace norlaplan {

/// Stands where an office document would be seen: says what it is, that the office program shows it, and
/// where its file is.
class OfficeNote : public QFrame {
  public:
    OfficeNote(const char* name, const QString& heading, const QString& text);

    void showFile(const std::filesystem::path& file);

  private:
    QLineEdit* file_;
};

}  // namespace norlaplan
