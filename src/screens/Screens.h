#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "screens/Form.h"
#include "screens/Services.h"

namespace norlaplan {

/// The navigator: makes each form when it is first asked for, shows one at a time, and gives every action its
/// boundary. The forms that are open stand in a pile: hiding the top one brings back the one beneath. A form
/// that newly comes onto the pile is told `opened()`, one that was on it already `cameBack()`.
class Screens {
  public:
    using Maker = std::function<std::unique_ptr<Form>(Screens&)>;

    explicit Screens(const Services& services) : services_(services) {}
    ~Screens();
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

    const Services& services() const { return services_; }

    /// Makes a form known under its name ("Form9"); nothing is built yet.
    void add(const std::string& name, Maker maker);

    /// The form, made now when it isn't there yet. The name must be known.
    Form& form(const std::string& name);
    template <typename Kind>
    Kind& formAs(FormName name) {
        return dynamic_cast<Kind&>(form(name));
    }

    /// Brings a form to the front, centred; a form that was open already comes back and what was over it
    /// closes.
    void show(FormName name);
    /// As `show`, in place of everything that is open.
    void showAlone(FormName name);
    /// As `show`, in place of `left`, which goes.
    void showInstead(const Form& left, FormName name);
    /// Takes a form away; the one beneath comes to the front again. Nothing when it isn't open.
    void hide(Form& form);
    /// The form in front; none before the first is shown.
    Form* current() const { return open_.empty() ? nullptr : open_.back(); }

    /// The boundary of every action: a failure is shown under the action's name, and the user is back on the
    /// form where the action began.
    void runAction(const std::string& name, const std::function<void()>& action);

    /// Ends the program.
    void quit();

  private:
    using Pile = std::vector<Form*>;
    void bringToFront(Pile pile);
    void activate(Pile pile);
    void showFailure(const std::string& title, const std::string& text, const std::string& action);

    Services services_;
    std::map<std::string, Maker> makers_;
    std::map<std::string, std::unique_ptr<Form>> forms_;
    Pile open_;
};

}  // namespace norlaplan
