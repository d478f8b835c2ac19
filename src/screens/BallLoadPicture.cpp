#include "screens/BallLoadPicture.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "paint/PainterCanvas.h"

namespace norlaplan {

BallLoadPicture::BallLoadPicture(const char* name, const QString& tip, const SolverState& solver, Told told)
    : DrawingPane(name, tip, tip), solver_(solver), told_(std::move(told)) {
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
}

void BallLoadPicture::showLoads(const BallLoadView& view) {
    view_.reset();
    tell(std::nullopt);
    showDrawing([background = view.colours.background](Canvas& canvas, const PageBox& box) {
        canvas.rectangle(box, background, std::nullopt);
    });
    showDrawing([this, view](Canvas& canvas, const PageBox& box) {
        drawBallLoads(solver_, view, box, false, canvas);
    });
    view_ = view;
}

void BallLoadPicture::tell(const std::optional<ShownBall>& ball) {
    ball_ = ball;
    told_(ball);
    update();
}

void BallLoadPicture::step(int balls, int row) {
    if (!view_) return;
    const int count = solver_.BallCount;
    if (row > shownRows(solver_)) return;
    // From no ball, or from another row, the first step shows the ball itself.
    const int from = ball_ ? ball_->ball : 1;
    const int next = ball_ && ball_->row == row ? (from - 1 + balls + count) % count + 1 : from;
    tell(shownBall(solver_, *view_, box(), row, next));
}

void BallLoadPicture::keyPressEvent(QKeyEvent* event) {
    const int row = ball_ ? ball_->row : 1;
    switch (event->key()) {
        case Qt::Key_Right:
            return step(1, row);
        case Qt::Key_Left:
            return step(-1, row);
        case Qt::Key_Up:
            return step(0, 1);
        case Qt::Key_Down:
            return step(0, 2);
        default:
            return DrawingPane::keyPressEvent(event);
    }
}

void BallLoadPicture::mouseMoveEvent(QMouseEvent* event) {
    if (view_) tell(ballAt(solver_, *view_, box(), pageAt(event->position())));
}

void BallLoadPicture::leaveEvent(QEvent* event) {
    tell(std::nullopt);
    DrawingPane::leaveEvent(event);
}

void BallLoadPicture::resizeEvent(QResizeEvent* event) {
    DrawingPane::resizeEvent(event);
    // Its place is another now.
    if (ball_) tell(shownBall(solver_, *view_, box(), ball_->row, ball_->ball));
}

void BallLoadPicture::paintEvent(QPaintEvent* event) {
    DrawingPane::paintEvent(event);
    if (!ball_) return;
    constexpr double kSpike = 3.0;
    constexpr double kRadius = 5.0;
    constexpr int kDark = 128;
    const bool dark = colourOf(view_->colours.background).lightness() < kDark;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(dark ? Qt::white : Qt::black, kSpike));
    painter.drawLine(pixelAt(ball_->foot), pixelAt(ball_->tip));
    painter.drawEllipse(pixelAt(ball_->tip), kRadius, kRadius);
}

}  // namespace norlaplan
