#pragma once

#include "screens/Form.h"

class QPushButton;

namespace norlaplan {

class RichTextBox;

/// The text viewer: one document, and a button that goes back.
class Form2 : public Form {
  public:
    explicit Form2(Screens& screens);

    /// Loads a document of the program folder and sets the title and the button's caption. Errors: as
    /// `ProgramFolder::read`; the viewer then keeps what it held.
    void load(const std::string& file, const QString& title, const QString& closeCaption);

    void opened() override;

  protected:
    QSize sizeFor(const QSize& room) const override { return QSize(sizeHint().width(), 640).boundedTo(room); }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    RichTextBox* text_;
    QPushButton* return_;
};

/// Opens the text viewer over the form in front.
void showText(Screens& screens, const std::string& file, const QString& title, const QString& closeCaption);

}  // namespace norlaplan
