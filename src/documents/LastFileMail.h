#pragma once

#include "state/Ports.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Opens a new mail with the last saved file attached. A failed step doesn't keep the later ones from being
/// asked for; at the end the user is told each fault that there was. With no file saved, or no mail program,
/// a message says so and nothing else is done.
void mailLastFile(const ProgramState& state, MailPort& mail, MessagePort& messages);

/// The subject of that mail: the file's name without folders, a blank, and the user's suffix. A path without
/// folders gives an empty name.
std::string mailSubject(const ProgramState& state);

}  // namespace norlaplan
