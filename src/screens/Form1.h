#pragma once

#include "screens/Form.h"

class QLabel;
class QPushButton;
class QTimer;

namespace norlaplan {

/// The start screen. The main menu follows on a press of Start, or by itself after four seconds.
class Form1 : public Form {
  public:
    explicit Form1(Screens& screens);

    void pressStart();
    /// What the option of that user changes here.
    void dressForNedGrove();

    void closed() override;
    /// Who reads the help isn't taken to the main menu meanwhile.
    void helpAsked() override;

  protected:
    /// There is nothing to go back to, and Escape doesn't end the program.
    void escaped() override {}

  private:
    void start();
    void showWarranty();
    QWidget* makeControls();

    QTimer* timer_;
    QLabel* purpose_;
    QWidget* logo_;
    QWidget* extraPictures_;
    QPushButton* start_;
};

/// Reads settings and options and shows the first screen: this one, or what the options go on to.
void ShowStartScreen(Screens& screens);

}  // namespace norlaplan
