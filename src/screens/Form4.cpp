#include "screens/Form4.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "documents/DataSheet.h"
#include "paint/BearingIcon.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kImageSize = 128;

}  // namespace

Form4::Form4(Screens& screens) : Form(screens, forms::kAbout, "About Norlaplan-MM") {
    auto* const image = build::label("Image1");
    image->setPixmap(bearingIcon().pixmap(QSize(kImageSize, kImageSize), devicePixelRatioF()));
    image->setAccessibleName(QStringLiteral("A thin-section ball bearing"));
    auto* const release = build::heading("Label1", kProgramVersion);
    release->setWordWrap(false);
    auto* const purpose = build::label("Label2", "Selects and calculates Varden thin-section ball bearings.");
    auto* const owner = build::label("Label3", "Copyright © 2026 The NORLAPLAN-MM developers. MIT License.");
    owner->setFont(theme::noteFont());
    close_ = button("Command1", "Close", "", [this] { this->screens().hide(*this); });

    auto* const words = theme::spaced(new QVBoxLayout, 0);
    words->addStretch();
    for (QLabel* const line : {release, purpose, owner})
        words->addWidget(line);
    words->addStretch();
    auto* const across = theme::spaced(new QHBoxLayout, 0);
    across->setSpacing(theme::kWideGap);
    across->addWidget(image, 0, Qt::AlignCenter);
    across->addLayout(words, 1);
    setWidth(Width::Own);
    page().addLayout(across);
    setFooter({.main = close_});
}

void Form4::opened() {
    close_->setFocus();
}

}  // namespace norlaplan
