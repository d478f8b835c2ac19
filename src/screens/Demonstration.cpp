#include "screens/Demonstration.h"

#include <QGridLayout>
#include <QHideEvent>
#include <QTimer>
#include <chrono>

#include "screens/FormBuilder.h"
#include "screens/Picture.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

using namespace std::chrono_literals;

constexpr QSize kPictureSize(300, 250);
/// The clearance opens, the ring moves along the axis and back, tilts both ways, and the clearance closes.
constexpr std::array<std::size_t, 25> kOrder = {1,  2,  3,  4, 5,  6,  7,  8, 9, 8, 7, 6, 5,
                                                12, 13, 12, 5, 11, 10, 11, 5, 4, 3, 2, 1};
constexpr std::size_t kTimes = 3;

}  // namespace

Demonstration::Demonstration(const char* name) : timer_(new QTimer(this)) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(QStringLiteral("Demonstration of axial play"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setPalette(theme::paper());
    // The frame keeps its room, so that nothing moves when it comes and goes.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    build::keepRoom(*this);

    auto* const cell = new QGridLayout(this);
    cell->setContentsMargins(2, 2, 2, 2);
    for (std::size_t i = 0; i < images_.size(); ++i) {
        const std::string image = "Image" + std::to_string(i + 1);
        images_[i] =
            new Picture(image.c_str(), QStringLiteral("Clearance and play of a bearing"), kPictureSize);
        images_[i]->setSizePolicy(sizePolicy());
        images_[i]->hide();
        cell->addWidget(images_[i], 0, 0);
    }
    hide();
    timer_->setObjectName(QStringLiteral("Timer1"));
    timer_->setTimerType(Qt::PreciseTimer);
    timer_->setInterval(100ms);
    connect(timer_, &QTimer::timeout, this, [this] { showNext(); });
}

void Demonstration::play(const ProgramFolder& folder) {
    stop();
    for (std::size_t i = 0; i < images_.size(); ++i)
        images_[i]->showFile(folder, "\\bkground\\C" + std::to_string(i + 1) + ".BMP");
    show();
    showNext();
    timer_->start();
}

void Demonstration::stop() {
    timer_->stop();
    step_ = 0;
    hide();
    for (Picture* const image : images_)
        image->hide();
}

void Demonstration::hideEvent(QHideEvent* event) {
    if (!event->spontaneous()) stop();
}

void Demonstration::showNext() {
    if (step_ == kTimes * kOrder.size()) {
        stop();
        return;
    }
    Picture* const next = images_[kOrder[step_ % kOrder.size()] - 1];
    for (Picture* const image : images_)
        image->hide();
    next->show();
    ++step_;
}

}  // namespace norlaplan
