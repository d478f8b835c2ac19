#pragma once

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Whether what stands in the application form may go: true when nothing in it is unsaved, else what the user
/// answers.
inline bool mayLoseApplication(const ProgramState& state, MessagePort& messages) {
    if (!state.application.unsaved) return true;
    const Message question{"Application Form",
                           "The application form has entries that are not saved. They will be lost.\n\n"
                           "Do you want to go on?",
                           Icon::Warning};
    return messages.ask(question, Buttons::YesNo) == Answer::Yes;
}

}  // namespace norlaplan
