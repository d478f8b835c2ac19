#pragma once

#include "screens/Form.h"

namespace norlaplan {

class OfficeNote;

/// The table of the metric series, which the desktop's office program shows.
class Form8 : public Form {
  public:
    explicit Form8(Screens& screens);

    /// Opens the workbook, and this form with the caption. When the office program can't be linked a message
    /// says so and the form in front stays. Errors: 53 when the workbook is missing.
    void openWorkbook(const QString& caption);

    void opened() override;

  private:
    /// False when the office program can't be linked; the user has been told.
    bool link();

    OfficeNote* note_;
    QPushButton* return_;
};

}  // namespace norlaplan
