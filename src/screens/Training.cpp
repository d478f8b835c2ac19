#include "screens/Training.h"

#include <QPointer>
#include <QPushButton>

#include "screens/Picture.h"
#include "screens/Screens.h"

namespace norlaplan {
namespace {

constexpr const char* kRunning = "\\icons\\onmoniter.ico";
constexpr const char* kAtRest = "\\icons\\offmoniter.ico";

}  // namespace

Training::Training(Screens& screens, QPushButton& button)
    : QObject(&button), screens_(screens), button_(button) {
    // No higher than the writing, so that the button stays as high as those beside it.
    const int height = button_.fontMetrics().height();
    button_.setIconSize(QSize(height, height));
    try {
        button_.setIcon(readIcon(screens_.services().folder.find(kAtRest)));
    } catch (const RuntimeError&) {
        // The main menu comes up without it, too; the end of a show tells.
    }
}

void Training::start() {
    if (running_) {
        screens_.show(forms::kTrainingShow);
        return;
    }
    const Services& services = screens_.services();
    button_.setIcon(readIcon(services.folder.find(kRunning)));
    setCaption("Loading...");
    running_ = true;
    try {
        const QPointer<Training> self(this);
        services.office.startShow(services.folder.find(kShow), [self](const auto& failure) {
            if (self != nullptr) self->ended(failure);
        });
        screens_.show(forms::kTrainingShow);
    } catch (const RuntimeError& failure) {
        ended(failure);
    }
}

void Training::ended(const std::optional<RuntimeError>& failure) {
    running_ = false;
    setCaption("Training");
    screens_.hide(screens_.form(forms::kTrainingShow));
    const Services& services = screens_.services();
    screens_.runAction("Bearing Training", [&] { button_.setIcon(readIcon(services.folder.find(kAtRest))); });
    if (failure) services.messages.show(trainingFailure(*failure, services.folder.root()));
}

void Training::setCaption(const QString& caption) {
    button_.setText(caption);
    button_.setAccessibleName(caption);
    // A new caption has lost the letter that presses it.
    screens_.form(forms::kMainMenu).giveLetters();
}

Message trainingFailure(const RuntimeError& failure, const std::filesystem::path& programFolder) {
    switch (failure.number()) {
        case fault::kNoOfficeLink:
            return {
                "Error Attempting to Run Training Module",
                "Cannot link to Microsoft PowerPoint, please run outside of Rotaplan, file location is: " +
                    programFolder.string() + "bla bla"};
        case fault::kNoSuchProgram:
            return {"Unable to open .ppt file", "Error linking to MS PowerPoint"};
        default:
            return {failure.what(), std::to_string(failure.number())};
    }
}

}  // namespace norlaplan
