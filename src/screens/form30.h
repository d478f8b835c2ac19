#pragma once

#include <array>

#include "loaddist/ContactSection.h"
#include "screens/Form.h"

class QGroupBox;
class QLabel;
class QRadioButton;

namespace norlaplan {

class ContactView;

/// Contact stress: the heaviest loaded ball of a row in the groove, with the land that its ellipse leaves.
class form30 : public Form {
  public:
    explicit form30(Screens& screens);

    void opened() override;

  private:
    /// What is said of one row.
    struct RowGroup {
        QGroupBox* frame;
        std::array<QLabel*, 5> lines;
        QRadioButton* option;
    };

    RowGroup makeRow(int row);
    QGroupBox* instructionFrame();
    QLayout* noteFields();
    void layOut();
    /// Page Up and Page Down change the drawing's scale wherever the focus is.
    void takePageKeys();

    /// Checks the row that is wanted, and shows it or the one that stands in for it.
    ContactSection choose(int row);
    void warnOfOverrun(const ContactSection& section);
    void showCheck(const ContactCheck& check);

    std::array<RowGroup, 2> rows_;
    ContactView* picture_;
    QLabel* overrun_;
};

}  // namespace norlaplan
