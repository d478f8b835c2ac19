#pragma once

#include <QWidget>
#include <filesystem>

class QLabel;
class QPushButton;

namespace norlaplan {

/// A quiet line that says where a file went, with the ways to it.
class SavedLine : public QWidget {
  public:
    SavedLine();

    void tell(const std::filesystem::path& path);
    const std::filesystem::path& path() const { return path_; }

    QPushButton& open() { return *open_; }
    QPushButton& showInFolder() { return *folder_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void elide();

    std::filesystem::path path_;
    QLabel* text_;
    QPushButton *open_, *folder_;
};

}  // namespace norlaplan
