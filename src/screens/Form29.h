#pragma once

#include <string>

#include "screens/Form.h"

class QLabel;
class QListWidget;
class QScrollArea;
class QStackedWidget;

namespace norlaplan {

class Picture;

/// The picture browser: a list of files, the chosen one beside it, and that one at full size.
class Form29 : public Form {
  public:
    explicit Form29(Screens& screens);

    void opened() override;

  protected:
    void escaped() override;

  private:
    QWidget* makeBrowser();
    QWidget* makeFrame();
    void listFiles();
    void showChosen();
    void viewChosen();
    void showList();
    std::filesystem::path chosenFile() const;

    QStackedWidget* views_;
    QListWidget* list_;
    Picture* image_;
    QScrollArea* fullSize_;
    QLabel* fullPicture_;
    QPushButton *menu_, *view_, *back_;
    std::string chosen_;  ///< the name of the chosen drawing; empty when there is none
};

}  // namespace norlaplan
