#pragma once

#include "screens/Form.h"

namespace norlaplan {

class RichTextBox;

/// The catalog introduction.
class Form21 : public Form {
  public:
    explicit Form21(Screens& screens);

    void opened() override { load(); }
    void cameBack() override { load(); }

  protected:
    QSize sizeFor(const QSize& room) const override;

  private:
    void load();

    RichTextBox* text_;
};

}  // namespace norlaplan
