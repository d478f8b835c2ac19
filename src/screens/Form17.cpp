#include "screens/Form17.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "documents/SheetRecords.h"
#include "numbers/Text.h"
#include "paint/PictureFile.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/SheetView.h"
#include "screens/Theme.h"
#include "state/MoveFile.h"

namespace norlaplan {
namespace {

constexpr double kUnitsPerPixel = 15.0;
constexpr int kSmallScreen = 1024;
constexpr int kBitmap = 2;  // place in the dialog's filters

int pixels(double units) {
    return static_cast<int>(units / kUnitsPerPixel);
}

}  // namespace

Form17::Form17(Screens& screens) : Form(screens, forms::kDataSheet, "Drawing Display") {
    sheet_ = new SheetView("Picture2");
    scroll_ = new QScrollBar(Qt::Vertical);
    scroll_->setObjectName(QStringLiteral("VScroll1"));
    scroll_->setAccessibleName(QStringLiteral("Scroll the data sheet"));
    scroll_->setFocusPolicy(Qt::StrongFocus);
    auto* const menu = build::button("Command1", "&Main Menu", "Return to Main Menu");
    auto* const redrawButton = build::button("Command2", "Redraw");
    auto* const saveButton = build::button("Command3", "&Save", "Save data sheet to file");
    auto* const printButton = build::button("Command4", "P&rint", "Print data sheet");

    sheet_->changed = [this] { fitScrollBar(); };
    on(scroll_, &QScrollBar::valueChanged, "Scroll", [this] { sheet_->scrollTo(scroll_->value()); });
    on(menu, &QPushButton::clicked, "Main Menu", [this] { this->screens().show(forms::kMainMenu); });
    on(redrawButton, &QPushButton::clicked, "Redraw", [this] { redraw(); });
    on(saveButton, &QPushButton::clicked, "Save", [this] { save(); });
    on(printButton, &QPushButton::clicked, "Print", [this] { print(); });

    auto* const drawing = new QHBoxLayout;
    drawing->setSpacing(0);
    drawing->addWidget(sheet_, 1);
    drawing->addWidget(scroll_);
    auto* const buttons = theme::spaced(new QVBoxLayout, 0);
    for (QPushButton* const button : {printButton, saveButton, redrawButton})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(menu);
    auto* const page = theme::spaced(new QHBoxLayout(this));
    page->addLayout(drawing, 1);
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
    scroll_->setFocus();
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
    if (auto records = soundRecords()) sheet_->showRecords(std::move(*records));
}

void Form17::save() {
    const SaveRequest request{"Save Data Sheet As",
                              {{"Rich Text File(*.rtf)", "*.rtf"}, {"Bitmap File(*.bmp)", "*.bmp"}},
                              ".rtf",
                              services().folder.root(),
                              trimmed(upperCase(state().bearing.partNumber))};
    const auto choice = services().saveDialog.askWhereToSave(request);
    if (!choice) return;
    if (choice->filterIndex == kBitmap) {
        const auto records = soundRecords();
        if (!records) return;
        saveBitmap(choice->path, sheet_->area(), [&](Canvas& canvas) { paintSheet(*records, canvas); });
    } else {
        // The sheet is moved, not copied: the program keeps one only until it has been saved.
        moveFile(services().folder.find("data.rtf"), choice->path);
    }
    state().lastSavedFile = choice->path.string();
}

void Form17::print() {
    const auto records = soundRecords();
    if (!records) return;
    services().printer.print("Data sheet " + state().bearing.partNumber,
                             [&](Canvas& canvas) { paintSheet(*records, canvas); });
}

void Form17::fitScrollBar() {
    scroll_->setPageStep(sheet_->height());
    scroll_->setSingleStep(std::max(1, sheet_->height() / 12));
    scroll_->setRange(0, std::max(0, sheet_->pageHeight() - sheet_->height()));
    scroll_->setValue(std::min(scroll_->value(), scroll_->maximum()));
    sheet_->scrollTo(scroll_->value());
}

void Form17::wheelEvent(QWheelEvent* event) {
    scroll_->setValue(scroll_->value() - event->angleDelta().y());
    event->accept();
}

}  // namespace norlaplan
