#include "screens/Form29.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <filesystem>
#include <vector>

#include "screens/FormBuilder.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/FileFault.h"
#include "state/ProgramFolder.h"

namespace norlaplan {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolder = "\\neds Pictures";
constexpr const char* kFirst = "START.JPG";
constexpr QSize kImageSize(560, 420);
constexpr int kListWidth = 260;

/// The names of the files that can be chosen, hidden ones left out, in the order of the alphabet. Error 76
/// when there is no such folder, 70 when it can't be read.
std::vector<std::string> fileNames(const ProgramFolder& folder) {
    std::error_code failure;
    const fs::path place = folder.find(kFolder);
    if (!fs::is_directory(place, failure)) throw fileFault(fault::kPathNotFound, place);
    if (fs::directory_iterator(place, failure); failure) throw fileFault(fault::kPermissionDenied, place);
    std::vector<std::string> names = folder.files(kFolder);
    std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
    return names;
}

QFrame* line(const char* name, QFrame::Shape shape) {
    auto* const made = new QFrame;
    made->setObjectName(QString::fromUtf8(name));
    made->setFrameShape(shape);
    made->setAttribute(Qt::WA_TransparentForMouseEvents);
    return made;
}

}  // namespace

Form29::Form29(Screens& screens)
    : Form(screens, forms::kPictureBrowser, "Custom Bearing Pictures and Drawings For Ned Grove") {
    fullPicture_ = new QLabel;
    fullPicture_->setAlignment(Qt::AlignCenter);
    fullPicture_->setAccessibleName(QStringLiteral("The picture at full size"));
    fullSize_ = new QScrollArea;
    fullSize_->setObjectName(QStringLiteral("FullSize"));
    fullSize_->setAccessibleName(QStringLiteral("The picture at full size; arrow keys move it"));
    fullSize_->setPalette(theme::paper());
    fullSize_->setWidgetResizable(true);
    fullSize_->setWidget(fullPicture_);
    views_ = new QStackedWidget;
    views_->addWidget(makeBrowser());
    views_->addWidget(fullSize_);
    page().addWidget(views_, 1);

    menu_ = button("Command1", "&Main Menu", "Return to Main Menu",
                   [this] { this->screens().show(forms::kMainMenu); });
    view_ = button("Command2", "&View", "View Chosen picture", [this] { viewChosen(); });
    back_ = button("BackToList", "Back to List", "Show the list of pictures", [this] { showList(); });
    setFooter({.mainMenu = menu_, .others = {back_}, .main = view_});
    on(list_, &QListWidget::itemSelectionChanged, "Select a Picture", [this] { showChosen(); });
}

QWidget* Form29::makeBrowser() {
    auto* const prompt = build::label("Label1", "Select a Picture from the List");
    list_ = new QListWidget;
    list_->setObjectName(QStringLiteral("File1"));
    list_->setMinimumWidth(kListWidth);
    build::buddy(*prompt, *list_);
    auto* const choice = theme::spaced(new QVBoxLayout, 0);
    choice->addWidget(prompt);
    choice->addWidget(list_, 1);

    auto* const browser = new QWidget;
    auto* const across = theme::spaced(new QHBoxLayout(browser), 0);
    across->setSpacing(theme::kWideGap);
    across->addLayout(choice);
    across->addWidget(makeFrame(), 1);
    return browser;
}

QWidget* Form29::makeFrame() {
    image_ = new Picture("Image1", QStringLiteral("The chosen picture"), kImageSize);
    auto* const frame = new QWidget;
    auto* const grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(line("Line1", QFrame::HLine), 0, 0, 1, 3);
    grid->addWidget(line("Line2", QFrame::HLine), 2, 0, 1, 3);
    grid->addWidget(line("Line3", QFrame::VLine), 1, 0);
    grid->addWidget(line("Line4", QFrame::VLine), 1, 2);
    grid->addWidget(image_, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return frame;
}

void Form29::opened() {
    showList();
    listFiles();
    const auto first = list_->findItems(QString::fromUtf8(kFirst), Qt::MatchFixedString);
    if (!first.isEmpty()) list_->setCurrentItem(first.front());
    list_->setFocus();
}

void Form29::listFiles() {
    list_->clear();
    for (const std::string& name : fileNames(services().folder))
        list_->addItem(QString::fromStdString(name));
}

fs::path Form29::chosenFile() const {
    return services().folder.find(std::string(kFolder) + "\\" + chosen_);
}

void Form29::showChosen() {
    // With the focus a list has a current file, chosen or not.
    const auto chosen = list_->selectedItems();
    chosen_ = chosen.isEmpty() ? std::string() : chosen.front()->text().toStdString();
    if (chosen_.empty())
        image_->showNothing();
    else
        image_->showStated(chosenFile());
}

void Form29::viewChosen() {
    if (chosen_.empty()) {
        services().messages.show({"No Drawing Chosen", "Please select a drawing from the file list"});
        return;
    }
    fullPicture_->setPixmap(readPicture(chosenFile()));
    views_->setCurrentWidget(fullSize_);
    view_->hide();
    back_->show();
    fullSize_->setFocus();
}

void Form29::showList() {
    views_->setCurrentIndex(0);
    fullPicture_->clear();
    back_->hide();
    view_->show();
    list_->setFocus();
}

void Form29::escaped() {
    if (views_->currentWidget() == fullSize_)
        showList();
    else
        closed();
}

}  // namespace norlaplan
