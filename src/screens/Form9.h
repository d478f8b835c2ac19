#pragma once

#include "screens/Form.h"

class QGroupBox;
class QLineEdit;

namespace norlaplan {

/// Part number entry.
class Form9 : public Form {
  public:
    explicit Form9(Screens& screens);

    /// After a part number that was refused: the screen with an empty field and the cursor in it.
    void startAgain();

    void opened() override;
    void cameBack() override { opened(); }

  private:
    QGroupBox* makeSeparators(const char* name, const std::vector<std::array<const char*, 3>>& options);
    void followEntry();
    void decode();

    QLineEdit* entry_;
    QGroupBox *angularSeparators_, *otherSeparators_;
};

}  // namespace norlaplan
