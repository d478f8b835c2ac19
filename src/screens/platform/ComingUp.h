#pragma once

#include <QStringList>

namespace norlaplan {

/// Starts another program with its arguments as they are, and waits until it has ended or has run for so long
/// that it has come up. Gives the code it ended with, -1 when it crashed, 0 when it still runs; it then runs
/// on after this program. Error 429 when it can't be started.
int codeWhenComingUp(const QString& program, const QStringList& arguments);

}  // namespace norlaplan
