#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "documents/Graph.h"
#include "state/Drawing.h"

namespace norlaplan {

/// A graph as a picture, as large as its room allows. The point under the pointer is marked with its values
/// as soon as the pointer comes near the curve; Ctrl+C copies the picture.
class GraphView : public QWidget {
  public:
    using Readout = std::function<void(const std::optional<GraphMark>&)>;

    /// `name` is the object name, `what` tells what the picture shows.
    GraphView(const char* name, const QString& what);

    /// Shows a graph on a picture of this size. The mark of an earlier one goes.
    void showGraph(Graph graph, Paper paper = papers::kGraphPicture);
    /// Shows white paper.
    void clear();

    /// Called whenever another point is marked, or none any more.
    void onReadout(Readout readout) { readout_ = std::move(readout); }
    const std::optional<GraphMark>& mark() const { return mark_; }

    /// The place on the picture's page under a pixel, and the pixel of a place.
    PagePoint pageAt(QPointF pixel) const;
    QPointF pixelAt(PagePoint place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint() / 2; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    double pixelsPerInch() const;
    QPointF corner() const;  ///< of the picture in the widget
    Drawing drawing() const;
    void setMark(std::optional<GraphMark> mark);

    std::optional<Graph> graph_;
    Paper paper_ = papers::kGraphPicture;
    std::optional<GraphMark> mark_;
    Readout readout_;
};

}  // namespace norlaplan
