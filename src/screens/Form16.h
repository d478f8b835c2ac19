#pragma once

#include <QButtonGroup>
#include <array>

#include "screens/Form.h"

class QLabel;
class QPushButton;
class QToolButton;

namespace norlaplan {

/// Bearing style selection: six pictures, of which one is chosen by a click.
class Form16 : public Form {
  public:
    explicit Form16(Screens& screens);

    void opened() override;

  protected:
    /// A double click on a picture chooses it and goes on.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void chooseStyle(std::size_t row);
    void proceed();
    void goToMainMenu();
    /// Sets what goes with a chosen style.
    void takeStyle();
    void refresh();

    std::array<QToolButton*, 6> pictures_{};
    QButtonGroup group_;
    QLabel* description_;
    QPushButton* proceed_;
    QPushButton* mainMenu_;
};

}  // namespace norlaplan
