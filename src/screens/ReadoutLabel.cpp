#include "screens/ReadoutLabel.h"

#include "screens/FormBuilder.h"
#include "screens/GraphView.h"

namespace norlaplan {

QLabel* readoutLabel(const char* name, const QString& spoken) {
    QLabel* const label = build::valueLabel(name);
    label->setAccessibleName(spoken);
    label->setAlignment(Qt::AlignHCenter);
    build::keepRoom(*label);
    label->setMinimumHeight(label->fontMetrics().height());
    label->hide();
    return label;
}

void followReadout(GraphView& graph, QLabel& label) {
    graph.onReadout([&label](const std::optional<GraphMark>& mark) {
        label.setText(mark ? QString::fromStdString(mark->label.text) : QString());
        label.setVisible(mark.has_value());
    });
}

}  // namespace norlaplan
