#pragma once

#include <string>
#include <vector>

#include "documents/Graph.h"
#include "documents/PrintedPage.h"
#include "documents/RTFroutines.h"
#include "state/Ports.h"

namespace norlaplan {

/// A piece of a line of notes.
struct NotePiece {
    std::string text;
    bool underline = false;
};

/// A line of notes; a deep one stands further in.
struct NoteLine {
    std::vector<NotePiece> pieces;
    bool deep = false;
};

/// A printed page: the graph above, its notes below.
void printGraphPage(const Graph& graph, const std::vector<NoteLine>& notes, ClockPort& clock, Canvas& canvas);

/// The two rules below a graph of a document, and its notes beneath them.
void writeNotesBelowGraph(RtfDocument& document, const std::vector<NoteLine>& notes);

/// The footer of a graph's document: the program and when it was made, which it calls printed.
std::string graphFooter(ClockPort& clock);

}  // namespace norlaplan
