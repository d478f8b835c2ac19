#pragma once

#include "documents/FaxCover.h"
#include "screens/Form.h"

class QLineEdit;

namespace norlaplan {

class MemoField;

/// Fax cover sheet: asks for the addressee and a message and prints the sheet.
class Form28 : public Form {
  public:
    explicit Form28(Screens& screens);

    void opened() override;

  private:
    FaxCover entered() const;
    void print();

    QLineEdit *addressee_, *faxNumber_, *subject_, *pageCount_;
    MemoField* message_;
};

}  // namespace norlaplan
