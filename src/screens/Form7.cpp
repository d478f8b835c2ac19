#include "screens/Form7.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "help/ProductLines.h"
#include "screens/Form8.h"
#include "screens/FormBuilder.h"
#include "screens/MemoField.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr QSize kPictureSize(440, 330);
constexpr int kTextLines = 12;
constexpr const char* kCaption = "Other Varden Bearings";
constexpr const char* kButton = "More Information";

}  // namespace

Form7::Form7(Screens& screens) : Form(screens, forms::kProductPage, kCaption) {
    name_ = build::heading("Label1", "");
    text_ = new MemoField("Text1", "", kTextLines);
    text_->setReadOnly(true);
    text_->setAccessibleName(QStringLiteral("About this product line"));
    text_->setPalette(theme::paper());
    text_->document()->setDocumentMargin(theme::kFrameMargin);
    QFont reading = text_->font();
    reading.setPointSizeF(reading.pointSizeF() + 1.0);
    text_->setFont(reading);
    auto* const box = new QFrame;
    box->setObjectName(QStringLiteral("Picture1"));
    box->setAccessibleName(QStringLiteral("Picture"));
    box->setFrameShape(QFrame::StyledPanel);
    box->setAutoFillBackground(true);
    box->setPalette(theme::paper());
    picture_ = new Picture("Image1", QStringLiteral("Picture of this product line"), kPictureSize);
    theme::spaced(new QVBoxLayout(box), 2)->addWidget(picture_);

    table_ = button("Command1", kButton, "Load Excel files", [this] {
        this->screens().formAs<Form8>(forms::kProductTable).openWorkbook("Metric Thin Section Bearings");
    });
    close_ = button("Close", "Close", "Close this page", [this] { this->screens().hide(*this); });

    auto* const across = theme::spaced(new QHBoxLayout, 0);
    across->setSpacing(theme::kWideGap);
    across->addWidget(box, 1);
    across->addWidget(text_, 1);
    page().addWidget(name_);
    page().addLayout(across, 1);
    setFooter({.others = {close_}, .main = table_});
}

void Form7::prepare(const std::string& line) {
    const bool metric = line == kMetricSeries;
    setWindowTitle(metric ? QString("%1 - Metric Series").arg(kCaption) : QString(kCaption));
    const QString caption = metric ? "Metric Series data Tables" : kButton;
    table_->setText(caption);
    table_->setAccessibleName(caption);
    table_->setVisible(metric);
    name_->setText(QString::fromStdString(line));
}

void Form7::opened() {
    const ProgramState& now = state();
    text_->setPlainText(QString::fromStdString(now.otherBearingText));
    if (now.otherBearingPicture.empty())
        picture_->showNothing();
    else
        picture_->showStated(services().folder.find(now.otherBearingPicture));
    close_->setFocus();
}

void showProductLine(Screens& screens, const std::string& line) {
    const Services& services = screens.services();
    const ProductLine product = productLine(services.folder, line);
    services.state.otherBearingText = product.text;
    services.state.otherBearingPicture = product.picture;
    screens.formAs<Form7>(forms::kProductPage).prepare(line);
    screens.show(forms::kProductPage);
}

}  // namespace norlaplan
