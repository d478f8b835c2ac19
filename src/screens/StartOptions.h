#pragma once

#include <QString>
#include <QStringList>

#include "state/ProgramFolder.h"

namespace norlaplan {

/// Tells Qt and the desktop which program this is.
void nameProgram();

/// Whether the words ask for a text, as `--help` does, for which no display is needed.
bool asksForText(int count, char** words);

/// Prints the text that was asked for and ends the program. Needs the application object.
[[noreturn]] void printText();

/// What the window program is started with.
struct StartOptions {
    QString programFolder;  ///< empty: the usual one
    QString fault;          ///< what is wrong with the words, empty when nothing is

    /// The folder that the program works on.
    ProgramFolder folder() const;
};

/// Reads the words of the command line, the first of which names the program.
StartOptions readStartOptions(const QStringList& words);

}  // namespace norlaplan
