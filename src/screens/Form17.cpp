#include "screens/Form17.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <utility>

#include "documents/DataSheet.h"
#include "documents/SheetRecords.h"
#include "numbers/RuntimeError.h"
#include "screens/DocumentOutput.h"
#include "screens/DrawingView.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/MoveFile.h"

namespace norlaplan {
namespace {

constexpr double kUnitsPerPixel = 15.0;
constexpr int kSmallScreen = 1024;
constexpr const char* kSheetFile = "data.rtf";

int pixels(double units) {
    return static_cast<int>(units / kUnitsPerPixel);
}

}  // namespace

Form17::Form17(Screens& screens) : Form(screens, forms::kDataSheet, "Drawing Display") {
    sheet_ = new DrawingView("Picture2", "Data sheet");
    auto* const menu = build::button("Command1", "&Main Menu", "Return to Main Menu");
    auto* const redrawButton = build::button("Command2", "Redraw");
    auto* const saveButton = build::button("Command3", "&Save", "Save data sheet to file");
    auto* const printButton = build::button("Command4", "P&rint", "Print data sheet");

    auto* const wholePage = build::button("WholePage", "&Whole Page", "Show the whole page (0)");
    auto* const pageWidth = build::button("PageWidth", "Page Wi&dth", "Show the page as wide as the window");
    auto* const zoomIn = build::button("ZoomIn", "Zoom &In", "Look closer (+)");
    auto* const zoomOut = build::button("ZoomOut", "Zoom &Out", "Show more of the page (-)");

    on(menu, &QPushButton::clicked, "Main Menu", [this] { this->screens().show(forms::kMainMenu); });
    on(redrawButton, &QPushButton::clicked, "Redraw", [this] { redraw(); });
    on(saveButton, &QPushButton::clicked, "Save", [this] { save(); });
    on(printButton, &QPushButton::clicked, "Print", [this] { print(); });
    on(wholePage, &QPushButton::clicked, "Whole Page", [this] { sheet_->showWholePage(); });
    on(pageWidth, &QPushButton::clicked, "Page Width", [this] { sheet_->showPageWidth(); });
    on(zoomIn, &QPushButton::clicked, "Zoom In", [this] { sheet_->zoomIn(); });
    on(zoomOut, &QPushButton::clicked, "Zoom Out", [this] { sheet_->zoomOut(); });

    auto* const buttons = theme::spaced(new QVBoxLayout, 0);
    for (QPushButton* const button : {printButton, saveButton, redrawButton})
        buttons->addWidget(button);
    buttons->addSpacing(theme::kWideGap);
    for (QPushButton* const button : {wholePage, pageWidth, zoomIn, zoomOut})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(menu);
    auto* const page = theme::spaced(new QHBoxLayout(this));
    page->addWidget(sheet_, 1);
    page->addLayout(buttons);
}

void Form17::fitToScreen(const QRect& room) {
    const QSize whole = screen()->size();
    const bool small = whole.width() <= kSmallScreen;
    const QSize wanted(small ? whole.width() * 9 / 10 : pixels(13824.0),
                       whole.height() - pixels(small ? 400.0 : 700.0));
    resize(wanted.boundedTo(room.size()));
}

void Form17::opened() {
    redraw();
    sheet_->setFocus();
}

std::optional<std::string> Form17::soundRecords() {
    std::string records = services().folder.read("CONDENSED.DAT");
    try {
        readSheetRecords(records);
        return records;
    } catch (const BadSheetRecord& bad) {
        services().messages.show(
            {"Drawing Display", std::string(bad.what()) + "\n\nThe program ends here.", Icon::Critical});
        screens().quit();
        return std::nullopt;
    }
}

void Form17::redraw() {
    auto sheet = document();
    if (!sheet) return;
    shown_ = std::move(*sheet);
    sheet_->showDrawing(shown_.pages);
}

std::optional<Document> Form17::document() {
    auto records = soundRecords();
    if (!records) return std::nullopt;
    return dataSheetDocument(state().bearing.partNumber, std::move(*records),
                             [this] { return services().folder.read(kSheetFile); });
}

void Form17::save() {
    shown_.pictureArea = sheet_->area();
    saveDocument(services(), shown_, [this](const std::filesystem::path& path) { moveSheet(path); });
}

void Form17::moveSheet(const std::filesystem::path& path) {
    const std::filesystem::path sheet = services().folder.find(kSheetFile);
    if (!std::filesystem::exists(sheet) && !movedTo_.empty()) {
        throw RuntimeError(fault::kFileNotFound,
                           runtimeErrorText(fault::kFileNotFound) + "\n\nThe data sheet was moved to " +
                               movedTo_.string() +
                               " when it was saved; enter the part number again to get a "
                               "new one.");
    }
    moveFile(sheet, path);
    movedTo_ = path;
}

void Form17::print() {
    if (const auto sheet = document()) printDocument(services(), *sheet);
}

}  // namespace norlaplan
