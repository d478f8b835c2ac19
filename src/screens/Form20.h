#pragma once

#include "screens/Form.h"

namespace norlaplan {

class RichTextBox;

/// The viewer of one help topic. Escape goes on to the index; closing the window goes back to the screen from
/// which the help was asked.
class Form20 : public Form {
  public:
    explicit Form20(Screens& screens);

    void opened() override { load(); }
    void cameBack() override { load(); }
    /// The help itself has no topic.
    void helpAsked() override {}

  protected:
    QSize sizeFor(const QSize& room) const override;
    void escaped() override;

  private:
    void load();

    RichTextBox* text_;
};

/// Shows a help topic over the form in front. Errors: 6 for a number beyond 16 bits; those of
/// `ProgramFolder::read` for its document, which name the file.
void showHelpTopic(Screens& screens, int topic);

}  // namespace norlaplan
