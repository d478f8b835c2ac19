#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "screens/FormRegistry.h"
#include "screens/Services.h"

namespace norlaplan {

class Screens;

/// A screen of the program: a window of its own, made on first use and kept, hidden, from then on. Its
/// controls carry their names ("Command3") as object names.
class Form : public QWidget {
  public:
    Form(Screens& screens, FormName name, const QString& caption);

    /// The form has been opened: it starts anew with what the program knows now.
    virtual void opened() {}
    /// The form is in front again after one that lay over it was left. What it showed still stands unless it
    /// says otherwise.
    virtual void cameBack() {}

    /// The form is about to appear in the middle of a screen with this room. Unless a form says otherwise it
    /// takes the size of its contents the first time and then keeps the user's.
    virtual void fitToScreen(const QRect& room);

    /// What closing the window does; unless a form says otherwise it goes back to the one before.
    virtual void closed();

  protected:
    Screens& screens() const { return screens_; }
    const Services& services() const;
    ProgramState& state() const;

    /// Runs `action` at the click of a button or another signal, inside the one boundary for failures. `name`
    /// is what the user is told when it fails.
    template <typename Sender, typename Signal>
    void on(Sender* sender, Signal signal, const char* name, std::function<void()> action) {
        connect(sender, signal, this, [this, name, action = std::move(action)] { run(name, action); });
    }
    void run(const char* name, const std::function<void()>& action);

    void closeEvent(QCloseEvent* event) override;
    /// Enter presses the button that has the focus.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Screens& screens_;
    bool fitted_ = false;
};

}  // namespace norlaplan
