#include "screens/Form1.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "screens/Form2.h"
#include "screens/Form3.h"
#include "screens/FormBuilder.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/Settings.h"

namespace norlaplan {
namespace {

constexpr int kMillisecondsToMenu = 4000;
constexpr QSize kStartPicture(560, 300);
constexpr QSize kExtraPicture(150, 100);

}  // namespace

Form1::Form1(Screens& screens) : Form(screens, forms::kStart, "Form1") {
    auto* const picture = new Picture("Image2", "Picture of a thin-section bearing", kStartPicture);
    picture->showFile(services().folder, "\\bkground\\start.ppm");
    logo_ = picture;

    extraPictures_ = new QWidget;
    auto* const extras = theme::spaced(new QHBoxLayout(extraPictures_), 0);
    const char* const files[] = {"\\bkground\\T-X.BMP", "\\bkground\\T-DB.BMP", "\\bkground\\T-C.BMP"};
    const char* const names[] = {"Image3", "Image4", "Image5"};
    for (int i = 0; i < 3; ++i) {
        auto* const extra = new Picture(names[i], "Picture of a bearing", kExtraPicture);
        extra->setProperty("file", QString::fromUtf8(files[i]));
        extras->addWidget(extra);
    }
    extraPictures_->hide();

    auto* const name = build::label("Label4", "NORLAPLAN-MM");
    name->setFont(theme::titleFont());
    name->setAlignment(Qt::AlignCenter);
    purpose_ = build::heading("Label3", "Bearing Design Program");
    purpose_->setAlignment(Qt::AlignCenter);
    // One line: so the picture gives way on a low screen before anything scrolls.
    purpose_->setWordWrap(false);

    QVBoxLayout* const page = &this->page();
    page->addWidget(logo_, 1);
    page->addWidget(name);
    page->addWidget(purpose_);
    page->addWidget(extraPictures_);
    page->addSpacing(theme::kWideGap - theme::kGap);
    page->addWidget(makeControls());

    timer_ = new QTimer(this);
    timer_->setObjectName(QStringLiteral("Timer1"));
    timer_->setSingleShot(true);
    on(timer_, &QTimer::timeout, "Start", [this] { pressStart(); });
    timer_->start(kMillisecondsToMenu);
}

QWidget* Form1::makeControls() {
    start_ = button("Command1", "Start", "Run Software", [this] { start(); });
    setMainButton(*start_);
    auto* const warranty =
        button("Command2", "Warranty", "View Warranty and software limitations", [this] { showWarranty(); });
    auto* const quit = button("Command3", "Quit", "Exit to Windows", [this] { screens().quit(); });
    auto* const begin = build::label("Label1", "Begin Program");
    auto* const terms = build::label("Label2", "Varden Warranty for this Software");

    auto* const controls = new QWidget;
    auto* const grid = theme::spaced(new QGridLayout(controls), 0);
    grid->addWidget(start_, 0, 1);
    grid->addWidget(begin, 0, 2);
    grid->addWidget(warranty, 1, 1);
    grid->addWidget(terms, 1, 2);
    grid->addWidget(quit, 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    return controls;
}

void Form1::pressStart() {
    start_->click();
}

void Form1::dressForNedGrove() {
    purpose_->setText(QStringLiteral("Norlaplan Tool version for Ned Q. Grove"));
    logo_->setToolTip(QStringLiteral("Our latest logo - cute isn't it?"));
    for (QObject* const child : extraPictures_->children()) {
        if (auto* const picture = dynamic_cast<Picture*>(child))
            picture->showFile(services().folder, picture->property("file").toString().toStdString());
    }
    extraPictures_->show();
}

void Form1::start() {
    timer_->stop();
    screens().showAlone(forms::kMainMenu);
}

void Form1::showWarranty() {
    timer_->stop();
    showText(screens(), "\\help\\warranty.rtf", "Warranty", "Exit Warranty");
}

void Form1::helpAsked() {
    timer_->stop();
    Form::helpAsked();
}

void Form1::closed() {
    screens().quit();
}

void ShowStartScreen(Screens& screens) {
    auto& form = screens.formAs<Form1>(forms::kStart);
    const Services& services = screens.services();
    const StartUp outcome = startUp(services.state, services.folder);
    if (outcome.pressStart) form.pressStart();
    if (outcome.pressEnterModelNumber) screens.formAs<Form3>(forms::kMainMenu).pressEnterModelNumber();
    if (outcome.showNedGrove) form.dressForNedGrove();
    if (!outcome.pressStart) screens.show(forms::kStart);
    if (!outcome.notice.empty()) services.messages.show({"SETTINGS.INI", outcome.notice, Icon::Warning});
    if (!outcome.extrasNotice.empty())
        services.messages.show({"Extras.txt", outcome.extrasNotice, Icon::Warning});
}

}  // namespace norlaplan
