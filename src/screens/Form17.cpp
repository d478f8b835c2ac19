#include "screens/Form17.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <system_error>
#include <utility>

#include "documents/DataSheet.h"
#include "documents/SheetRecords.h"
#include "numbers/RuntimeError.h"
#include "screens/Decoding.h"
#include "screens/DocumentOutput.h"
#include "screens/DrawingView.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/WholeFile.h"

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
    auto* const menu = button("Command1", "&Main Menu", "Return to Main Menu",
                              [this] { this->screens().show(forms::kMainMenu); });
    auto* const redrawButton = button("Command2", "Redraw", "", [this] { redraw(); });
    auto* const saveButton = button("Command3", "&Save", "Save data sheet to file", [this] { save(); });
    auto* const printButton = button("Command4", "P&rint", "Print data sheet", [this] { print(); });
    auto* const wholePage =
        button("WholePage", "&Whole Page", "Show the whole page (0)", [this] { sheet_->showWholePage(); });
    auto* const pageWidth = button("PageWidth", "Page Wi&dth", "Show the page as wide as the window",
                                   [this] { sheet_->showPageWidth(); });
    auto* const zoomIn = button("ZoomIn", "Zoom &In", "Look closer (+)", [this] { sheet_->zoomIn(); });
    auto* const zoomOut =
        button("ZoomOut", "Zoom &Out", "Show more of the page (-)", [this] { sheet_->zoomOut(); });

    auto* const buttons = theme::spaced(new QVBoxLayout, 0);
    for (QPushButton* const button : {printButton, saveButton, redrawButton})
        buttons->addWidget(button);
    buttons->addSpacing(theme::kWideGap);
    for (QPushButton* const button : {wholePage, pageWidth, zoomIn, zoomOut})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(menu);
    auto* const across = theme::spaced(new QHBoxLayout, 0);
    across->addWidget(sheet_, 1);
    across->addLayout(buttons);
    page().addLayout(across);
}

QSize Form17::sizeFor(const QSize& room) const {
    const QSize whole = screen()->size();
    const bool small = whole.width() <= kSmallScreen;
    const QSize wanted(small ? whole.width() * 9 / 10 : pixels(13824.0),
                       whole.height() - pixels(small ? 400.0 : 700.0));
    return wanted.boundedTo(room);
}

void Form17::opened() {
    redraw();
    sheet_->setFocus();
}

std::optional<std::string> Form17::soundRecords() {
    const std::optional<std::string> records = readFile("CONDENSED.DAT");
    if (!records) return makeAgain().records;
    try {
        readSheetRecords(*records);
    } catch (const BadSheetRecord& bad) {
        services().messages.show(
            {"Drawing Display", std::string(bad.what()) + "\n\nThe program ends here.", Icon::Critical});
        screens().quit();
        return std::nullopt;
    }
    return records->starts_with(dataSheetBeginning(state()).records) ? *records : makeAgain().records;
}

std::string Form17::sheetText() {
    const std::optional<std::string> sheet = readFile(kSheetFile);
    if (sheet && sheet->starts_with(dataSheetBeginning(state()).rtf)) return *sheet;
    if (!movedTo_.empty() && moved_ == state().decoded.decodes()) {
        throw RuntimeError(fault::kFileNotFound,
                           runtimeErrorText(fault::kFileNotFound) + "\n\nThe data sheet was moved to " +
                               movedTo_.string() +
                               " when it was saved; enter the part number again to get a "
                               "new one.");
    }
    return makeAgain().rtf;
}

std::optional<std::string> Form17::readFile(const char* name) const {
    try {
        return services().folder.read(name);
    } catch (const RuntimeError& error) {
        if (error.number() != fault::kFileNotFound) throw;
        return std::nullopt;
    }
}

SheetFiles Form17::makeAgain() {
    SheetFiles sheet = makeDataSheet(state(), services().folder, services().clock);
    services().sheets.store(sheet);
    movedTo_.clear();
    return sheet;
}

void Form17::redraw() {
    auto sheet = document();
    if (!sheet) return;
    shown_ = std::move(*sheet);
    shownDecode_ = state().decoded.decodes();
    sheet_->showDrawing(shown_.pages);
}

std::optional<Document> Form17::document() {
    auto records = soundRecords();
    if (!records) return std::nullopt;
    return dataSheetDocument(state().bearing.partNumber, std::move(*records), [this] { return sheetText(); });
}

bool Form17::sheetInHand() {
    if (!bearingInHand(screens())) return false;
    // A bearing that was decoded since has a sheet of its own.
    if (shownDecode_ != state().decoded.decodes()) redraw();
    return true;
}

void Form17::save() {
    if (!sheetInHand()) return;
    shown_.pictureArea = sheet_->area();
    saveAs(shown_, [this](const std::filesystem::path& path) { moveSheet(path); });
}

void Form17::moveSheet(const std::filesystem::path& path) {
    // What is saved is what was looked at: by now another program may have put its own sheet in the file.
    const std::string text = sheetText();
    const std::filesystem::path sheet = services().folder.own(kSheetFile);
    std::error_code ignored;
    if (!std::filesystem::equivalent(sheet, path, ignored)) {
        writeWholeFile(path, text);
        std::filesystem::remove(sheet, ignored);
    }
    movedTo_ = path;
    moved_ = state().decoded.decodes();
}

void Form17::print() {
    if (!sheetInHand()) return;
    if (const auto sheet = document()) printDocument(services(), *sheet);
}

}  // namespace norlaplan
