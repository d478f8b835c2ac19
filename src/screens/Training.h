#pragma once

#include <QObject>
#include <optional>

#include "numbers/RuntimeError.h"
#include "state/Ports.h"

class QPushButton;

namespace norlaplan {

class Screens;

/// The bearing training: a slide show of the office program behind the main menu's button, whose picture and
/// caption say whether the show runs. One show runs at a time.
class Training : public QObject {
  public:
    static constexpr const char* kShow = "\\training\\varden.pps";

    /// Belongs to the button. Without its picture the button has none.
    Training(Screens& screens, QPushButton& button);

    /// Starts the show and comes back at once; while it runs, shows what stands here meanwhile. Errors: 53
    /// and 481 for the picture of the lit monitor. How the show fails is told in a message.
    void start();

  private:
    void ended(const std::optional<RuntimeError>& failure);
    void setCaption(const QString& caption);

    Screens& screens_;
    QPushButton& button_;
    bool running_ = false;
};

/// What is told of a show that failed.
Message trainingFailure(const RuntimeError& failure, const std::filesystem::path& programFolder);

}  // namespace norlaplan
