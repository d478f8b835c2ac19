#pragma once

#include <QToolButton>
#include <optional>

#include "documents/Graph.h"

namespace norlaplan {

/// The curves of a graph in a small picture that is pressed to see it in full size. With no graph it says
/// why, and can't be pressed.
class GraphPicture : public QToolButton {
  public:
    /// `name` is the object name, `spoken` what a screen reader says.
    GraphPicture(const char* name, const QString& spoken, const QString& tip);

    void showGraph(Graph graph);
    void showWords(const QString& words);
    /// What stands in the place of a graph; empty when there is one.
    const QString& words() const { return words_; }

    QSize sizeHint() const override { return {260, 140}; }
    QSize minimumSizeHint() const override { return sizeHint() / 2; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintCurves(QPainter& painter) const;

    std::optional<Graph> graph_;
    QString words_;
};

}  // namespace norlaplan
