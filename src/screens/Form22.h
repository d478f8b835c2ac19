#pragma once

#include <vector>

#include "screens/Form.h"

class QRadioButton;

namespace norlaplan {

/// The help index: its topics in columns, each of which a click, Enter or its letter opens. The one that was
/// read last is marked. Arrow keys go from topic to topic and open none.
class Form22 : public Form {
  public:
    explicit Form22(Screens& screens);

    void opened() override { markLastRead(); }
    void cameBack() override { markLastRead(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* makeTopics();
    void markLastRead();
    /// The topic under the pointer is red, all others are blue.
    void light(const QObject* pointed);
    bool takesKey(QRadioButton& topic, int key);

    std::vector<QRadioButton*> topics_;
};

}  // namespace norlaplan
