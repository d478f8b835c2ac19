#pragma once

#include <QString>

class QLabel;

namespace norlaplan {

class GraphView;

/// The line under a graph that says what the cross in it stands at; hidden, it keeps its room. `spoken` is
/// what a screen reader says.
QLabel* readoutLabel(const char* name, const QString& spoken);

/// The label shows the read-out of the graph from now on.
void followReadout(GraphView& graph, QLabel& label);

}  // namespace norlaplan
