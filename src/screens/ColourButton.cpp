#include "screens/ColourButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "paint/PainterCanvas.h"
#include "screens/Theme.h"

namespace norlaplan {

ColourButton::ColourButton(const char* name, const QString& tip) {
    setObjectName(QString::fromUtf8(name));
    setToolTip(tip);
    setAccessibleName(tip);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

void ColourButton::showColour(Colour colour) {
    colour_ = colour;
    update();
}

void ColourButton::paintEvent(QPaintEvent*) {
    constexpr int kFrame = 2;
    QPainter painter(this);
    painter.fillRect(rect(), hasFocus() ? theme::accent() : palette().color(QPalette::Mid));
    painter.fillRect(rect().adjusted(kFrame, kFrame, -kFrame, -kFrame), colourOf(colour_));
}

void ColourButton::keyPressEvent(QKeyEvent* event) {
    // Enter presses what has the focus, as on every other button.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

}  // namespace norlaplan
