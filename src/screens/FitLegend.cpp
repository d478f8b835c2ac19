#include "screens/FitLegend.h"

#include <QGridLayout>
#include <QPainter>

#include "fits/ThermalFitsGraph.h"
#include "paint/PainterCanvas.h"
#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kFirstLabel = 13;
constexpr int kColumns = 3;

/// A piece of a line as it looks in the drawing: one of them is too pale for white paper.
class LineSample : public QWidget {
  public:
    explicit LineSample(const FitLine& line) : colour_(colourOf(line.colour)) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    QSize sizeHint() const override { return {3 * fontMetrics().height(), fontMetrics().height()}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), colourOf(kFitGround));
        painter.setPen(QPen(colour_, 2.0));
        painter.drawLine(QLineF(0.0, height() / 2.0, width(), height() / 2.0));
    }

  private:
    QColor colour_;
};

}  // namespace

QGroupBox* fitLegend(const char* name) {
    QGroupBox* const frame = build::frame(name, "Legend");
    auto* const grid = theme::spaced(new QGridLayout(frame), theme::kFrameMargin);
    int line = 0;
    for (const FitLine& shown : kFitLegend) {
        auto* const sample = new LineSample(shown);
        sample->setObjectName(QStringLiteral("Line%1").arg(line + 1));
        sample->setAccessibleName(QStringLiteral("Color of ") + shown.name);
        const std::string label = "Label" + std::to_string(kFirstLabel + line);
        const int column = 2 * (line % kColumns);
        grid->addWidget(sample, line / kColumns, column);
        grid->addWidget(build::label(label.c_str(), shown.name), line / kColumns, column + 1);
        grid->setColumnStretch(column + 1, 1);
        ++line;
    }
    QLabel* const rising = build::label("Label20", "Temperature increasing to the right");
    rising->setFont(theme::noteFont());
    grid->addWidget(rising, line / kColumns, 2 * (line % kColumns), 1, -1);
    return frame;
}

}  // namespace norlaplan
