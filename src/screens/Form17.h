#pragma once

#include "screens/Form.h"

class QScrollBar;

namespace norlaplan {

class SheetView;

/// The data sheet of the current bearing: looked at, saved, printed.
class Form17 : public Form {
  public:
    explicit Form17(Screens& screens);

    void opened() override;
    void fitToScreen(const QRect& room) override;

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    /// Reads the drawing afresh and shows the whole page.
    void redraw();
    void save();
    void print();
    void fitScrollBar();
    /// The records of the program folder. A record that nobody can draw ends the program: nothing then.
    std::optional<std::string> soundRecords();

    SheetView* sheet_;
    QScrollBar* scroll_;
};

}  // namespace norlaplan
