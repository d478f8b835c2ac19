#pragma once

#include "screens/Form.h"
#include "state/MenuConditions.h"

class QAction;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;

namespace norlaplan {

class StepMark;
class Training;

/// The main menu: the hub from which every screen is opened and to which every one returns.
class Form3 : public Form {
  public:
    explicit Form3(Screens& screens);

    void pressEnterModelNumber();

    void opened() override { refresh(); }
    void cameBack() override { refresh(); }
    void closed() override;

  protected:
    /// The menu is the hub: there is nothing to go back to, and Escape doesn't end the program.
    void escaped() override {}

  private:
    /// Brings what the menu shows up to date.
    void refresh();
    QPushButton* makeButton(const char* name, const QString& caption, const QString& tip,
                            void (Form3::*action)());
    QWidget* makeHead();
    QWidget* makeKnownPath();
    QWidget* makeSearchPath();
    QWidget* makeFoot();
    QMenuBar* makeMenus();
    void addAction(QMenu& menu, const char* name, const QString& caption, std::function<void()> action);

    // The two paths.
    void askForPath();
    void openModelNumber();
    void openDataSheet();
    void openPreloadTorque();
    void openAxialPlay();
    void openDeflection();
    void openKnownLoads();
    void openLife();
    void openThermalFits();
    void openStyle();
    void openSizes();
    void openSearchLoads();
    void openResults();

    // The rest.
    void openIntroduction();
    void openTraining();
    void openApplicationForm();
    void openFaxCover();
    void openNedsPictures();
    void clearAll();
    void sendMail();
    void exportBearing();
    void askToQuit();
    void exitProgram();

    /// Shows the message, if there is one, and says whether there was.
    bool refused(const std::optional<Message>& refusal);
    /// Whether there is a bearing in hand, decoded; otherwise the user has been told.
    bool bearingReady();
    /// Opens a form unless the bearing in hand is refused.
    void openFor(const std::optional<Message>& refusal, FormName form);
    /// Shows what a step of the search misses, opens that step, and says whether there was one.
    bool misses(const std::optional<StepRefusal>& refusal);

    /// A step of a path: its mark and, under its buttons, what was set there.
    struct Step {
        StepMark* mark = nullptr;
        QLabel* value = nullptr;
    };
    void showSteps();

    QLabel *partNumber_, *units_;
    Step bearingStep_, lifeStep_, styleStep_, sizesStep_, loadsStep_, resultsStep_;
    QLabel* knownMark_;
    QLabel* searchMark_;
    QPushButton *modelNumber_, *style_, *thermalFits_, *faxCover_, *nedsPictures_;
    QAction* export_;
    Training* training_;
};

}  // namespace norlaplan
