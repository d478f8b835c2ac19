#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "screens/DocumentOutput.h"
#include "screens/FormRegistry.h"
#include "screens/Services.h"

class QMenuBar;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace norlaplan {

class FlowRow;
class SavedLine;
class Screens;

/// A screen of the program: a window of its own, made on first use and kept, hidden, from then on. Its
/// controls carry their names ("Command3") as object names.
///
/// A form puts its controls on the page and its buttons into the footer. The window takes the program's width
/// and the height that its contents want, follows them when they grow or shrink, and never leaves the screen:
/// where the room is too small the page scrolls and the footer stays in view. A size that the user has given
/// the window is kept.
class Form : public QWidget {
  public:
    Form(Screens& screens, FormName name, const QString& caption);
    ~Form() override;

    /// The form has been opened: it starts anew with what the program knows now.
    virtual void opened() {}
    /// The form is in front again after one that lay over it was left. What it showed still stands unless it
    /// says otherwise.
    virtual void cameBack() {}

    /// What the F1 key does: the help topic of this form, over it.
    virtual void helpAsked();

    /// What closing the window does; unless a form says otherwise it goes back to the one before.
    virtual void closed();

    /// The form is about to appear on a screen with this room: gives it its size and its letters.
    void prepareToShow(const QRect& room);
    /// Gives buttons the letters that press them, and captions of fields those that lead there.
    void giveLetters();

    QSize sizeHint() const override;

  protected:
    /// The buttons under a page, in the one order of all forms: the main menu at the left, then from the
    /// right end the one that leads on, the others, and the one that goes back. Enter presses the main one.
    struct Footer {
        QPushButton* mainMenu = nullptr;
        QPushButton* previous = nullptr;
        std::vector<QPushButton*> others = {};
        QPushButton* main = nullptr;
    };
    enum class Width { Program, Own };  ///< the width that forms share, or that of the contents

    Screens& screens() const { return screens_; }
    const Services& services() const;
    ProgramState& state() const;

    /// Where the form's controls go.
    QVBoxLayout& page();
    void setFooter(const Footer& buttons);
    void setMenus(QMenuBar* menus);
    void setWidth(Width width) { width_ = width; }
    /// The button that Enter presses when the focus is on no other.
    void setMainButton(QPushButton& button);

    /// Makes a button whose click runs `action` inside the boundary, under the name of its caption.
    QPushButton* button(const char* name, const QString& caption, const QString& tip,
                        std::function<void()> action);

    /// Runs `action` at a signal, inside the one boundary for failures. `name` is what the user is told when
    /// it fails.
    template <typename Sender, typename Signal>
    void on(Sender* sender, Signal signal, const std::string& name, std::function<void()> action) {
        connect(sender, signal, this, [this, name, action = std::move(action)] { run(name, action); });
    }
    void run(const std::string& name, const std::function<void()>& action);

    /// Asks where a document goes, saves it, and says in a line above the footer where it is.
    void saveAs(const Document& document, const RtfSaver& saveRtf = {});
    /// Says where a file went.
    void tellSaved(const std::filesystem::path& path);

    /// The size in which the form appears, within that of the room.
    virtual QSize sizeFor(const QSize& room) const;
    /// What Escape does; as closing the window unless a form says otherwise.
    virtual void escaped() { closed(); }

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void fitTo(const QSize& room);
    void followContents();
    void orderTabs();
    void openSaved(const std::filesystem::path& path);

    Screens& screens_;
    QVBoxLayout* outer_;
    QScrollArea* scroll_ = nullptr;
    QWidget* page_ = nullptr;
    QWidget* footer_ = nullptr;
    SavedLine* saved_ = nullptr;
    QMenuBar* menus_ = nullptr;
    QPushButton* main_ = nullptr;
    std::vector<QPushButton*> footerTabs_;
    Width width_ = Width::Program;
    QRect room_;    ///< of the screen, when it appeared
    QSize fitted_;  ///< the size that the form gave itself; any other is the user's
};

}  // namespace norlaplan
