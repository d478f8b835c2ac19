#include "screens/Screens.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <new>

#include "numbers/RuntimeError.h"
#include "numbers/Single.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

/// Puts a window into the middle of its screen; positions are 32-bit, as everywhere on the screens.
void centre(Form& form) {
    const QRect screen = form.screen()->geometry();
    const QSize own = form.frameGeometry().size();
    const Single left = static_cast<double>(screen.width() - own.width()) / 2.0;
    const Single top = static_cast<double>(screen.height() - own.height()) / 2.0;
    const QRect room = form.screen()->availableGeometry();
    form.move(std::max(room.left(), screen.x() + static_cast<int>(left)),
              std::max(room.top(), screen.y() + static_cast<int>(top)));
}

/// The pile with `wanted` on top: what lay over it goes.
std::vector<Form*> openUpTo(std::vector<Form*> pile, Form& wanted) {
    const auto found = std::find(pile.begin(), pile.end(), &wanted);
    pile.erase(found, pile.end());
    pile.push_back(&wanted);
    return pile;
}

}  // namespace

Screens::~Screens() = default;

void Screens::add(const std::string& name, Maker maker) {
    makers_[name] = std::move(maker);
}

Form& Screens::form(const std::string& name) {
    std::unique_ptr<Form>& form = forms_[name];
    if (!form) form = makers_.at(name)(*this);
    return *form;
}

void Screens::show(FormName name) {
    activate(openUpTo(open_, form(name)));
}

void Screens::showAlone(FormName name) {
    activate({&form(name)});
}

void Screens::showInstead(const Form& left, FormName name) {
    Pile pile = open_;
    std::erase(pile, &left);
    activate(openUpTo(std::move(pile), form(name)));
}

void Screens::hide(Form& form) {
    const bool inFront = current() == &form;
    Pile pile = open_;
    std::erase(pile, &form);
    if (inFront)
        activate(std::move(pile));
    else
        open_ = std::move(pile);
}

void Screens::bringToFront(Pile pile) {
    Form* const before = current();
    open_ = std::move(pile);
    Form* const now = current();
    if (now != nullptr && !now->isVisible()) {
        now->prepareToShow(now->screen()->availableGeometry());
        centre(*now);
        now->show();
    }
    if (before != nullptr && before != now) before->hide();
    if (now != nullptr) {
        now->raise();
        now->activateWindow();
    }
}

void Screens::activate(Pile pile) {
    const bool wasOpen = !pile.empty() && std::find(open_.begin(), open_.end(), pile.back()) != open_.end();
    bringToFront(std::move(pile));
    if (current() == nullptr) return;
    if (wasOpen)
        current()->cameBack();
    else
        current()->opened();
    // Captions may have come with what the form shows now.
    if (current() != nullptr) current()->giveLetters();
}

void Screens::runAction(const std::string& name, const std::function<void()>& action) {
    const Pile before = open_;
    try {
        action();
        return;
    } catch (const RuntimeError& error) {
        showFailure("Run-time error '" + std::to_string(error.number()) + "'", error.what(), name);
    } catch (const NotConverging& error) {
        showFailure(NotConverging::title(), error.what(), name);
    } catch (const std::bad_alloc&) {
        showFailure("Run-time error '7'", "Out of memory", name);
    } catch (const std::exception& error) {
        showFailure("Unexpected error", error.what(), name);
    }
    if (open_ != before) bringToFront(before);
}

void Screens::showFailure(const std::string& title, const std::string& text, const std::string& action) {
    services_.messages.show({title, text + "\n\n" + action, Icon::Critical});
}

void Screens::quit() {
    for (Form* const form : open_)
        form->hide();
    open_.clear();
    QCoreApplication::quit();
}

}  // namespace norlaplan
