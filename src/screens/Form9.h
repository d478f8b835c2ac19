#pragma once

#include "screens/Form.h"

class QCompleter;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QStringListModel;

namespace norlaplan {

class NumberMeaningView;

/// Part number entry: the number, what each of its characters means while it is typed, and the numbers that
/// were entered before.
class Form9 : public Form {
  public:
    explicit Form9(Screens& screens);

    /// After a part number that was refused: the screen with an empty field and the cursor in it.
    void startAgain();

    void opened() override;
    void cameBack() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeEntry();
    void offerAll();
    QGroupBox* makeSeparators(const char* name, const std::vector<std::array<const char*, 3>>& options);
    void followEntry();
    void showMeaning();
    void decode();

    QLineEdit* entry_;
    QCompleter* completer_;
    QStringListModel* offered_;
    std::vector<std::string> entered_;  ///< before, as of when the screen was opened
    NumberMeaningView* meaning_;
    QPushButton* view_;
    QGroupBox *angularSeparators_, *otherSeparators_;
};

}  // namespace norlaplan
