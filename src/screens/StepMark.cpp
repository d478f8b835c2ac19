#include "screens/StepMark.h"

#include <QPainter>

#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kDiameter = 30;
constexpr int kHeight = 42;  ///< of the button beside it
constexpr double kRing = 1.5;

}  // namespace

StepMark::StepMark(const QString& name, int number) : number_(number) {
    setObjectName(name);
    setFixedSize(kDiameter, kHeight);
    setFont(theme::headingFont());
    setDone(false);
}

void StepMark::setDone(bool done) {
    if (done == done_) return;
    done_ = done;
    setAccessibleName(QStringLiteral("Step %1%2").arg(number_).arg(done ? ", done" : ""));
    update();
}

void StepMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRectF ring(0, 0, kDiameter - 2 * kRing, kDiameter - 2 * kRing);
    ring.moveCenter(QRectF(rect()).center());
    if (done_) {
        theme::drawTick(painter, ring);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::WindowText), kRing));
    painter.drawEllipse(ring);
    painter.drawText(rect(), Qt::AlignCenter, QString::number(number_));
}

}  // namespace norlaplan
