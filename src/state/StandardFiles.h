#pragma once

namespace norlaplan {

/// Fills the places of standard input, output and error that the caller has closed, before the program opens
/// a file of its own: it would take such a place, and get the messages that are meant for a terminal. Reading
/// or writing there goes on to fail.
void holdClosedStandardFiles();

}  // namespace norlaplan
