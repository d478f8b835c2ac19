#pragma once

#include <optional>

#include "deflection/DeflectionGraph.h"
#include "documents/Document.h"
#include "screens/Form.h"

class QLabel;

namespace norlaplan {

class GraphView;
struct GraphMark;

/// One deflection curve in full size: read off, printed, saved, copied as a table.
class Form26 : public Form {
  public:
    explicit Form26(Screens& screens);

    void opened() override;
    void cameBack() override;

  protected:
    /// As high as the room allows, since the graph is as high as wide.
    QSize sizeFor(const QSize& room) const override;

  private:
    void makeButtons();
    /// The curve that was chosen; none when it isn't there.
    std::optional<DeflectionGraphData> curveData() const;
    std::optional<Document> document() const;
    void redraw();
    void showReadout(const std::optional<GraphMark>& mark);
    void changeSettings();
    void copyTable();
    void print();
    void save();

    GraphView* graph_;
    QLabel* readout_;
};

}  // namespace norlaplan
