#pragma once

#include "screens/Form.h"

class QLabel;

namespace norlaplan {

class MemoField;
class Picture;

/// The page of one of the maker's other product lines: its text and picture.
class Form7 : public Form {
  public:
    explicit Form7(Screens& screens);

    /// Gets ready for the line of this name: captions, and whether there is a table behind it.
    void prepare(const std::string& line);

    void opened() override;

  private:
    QLabel* name_;
    Picture* picture_;
    MemoField* text_;
    QPushButton *table_, *close_;
};

/// The menu's action: hands the line's text and picture to the product page and opens it. Errors: those of
/// `productLine` and, for the picture, of `readPicture`.
void showProductLine(Screens& screens, const std::string& line);

}  // namespace norlaplan
