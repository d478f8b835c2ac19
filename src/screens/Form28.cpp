#include "screens/Form28.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/DocumentOutput.h"
#include "screens/FormBuilder.h"
#include "screens/MemoField.h"
#include "screens/NumberField.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kMessageLines = 10;
constexpr int kPageDigits = 8;

}  // namespace

Form28::Form28(Screens& screens) : Form(screens, forms::kFaxCover, "Fax Cover Sheet") {
    auto* const grid = theme::spaced(new QGridLayout, 0);
    const auto addRow = [grid](const char* name, const QString& caption, QWidget* field,
                               Qt::Alignment at = Qt::AlignVCenter) {
        QLabel* const label = build::label(name, caption);
        build::buddy(*label, *field);
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0, at);
        return row;
    };
    addressee_ = build::edit("Text1");
    faxNumber_ = build::edit("Text2");
    subject_ = build::edit("Text3");
    pageCount_ = build::edit("Text4");
    message_ = new MemoField("Text5", "", kMessageLines);
    for (const auto& [name, caption, field] : {std::tuple{"Label1", "To:", addressee_},
                                               {"Label2", "FAX:", faxNumber_},
                                               {"Label3", "Subject:", subject_}})
        grid->addWidget(field, addRow(name, caption, field), 1, 1, 2);

    pageCount_->setMaximumWidth(pageCount_->fontMetrics().horizontalAdvance('0') * kPageDigits * 2);
    const int pages = addRow("Label4", "# pages", pageCount_);
    grid->addWidget(pageCount_, pages, 1);
    grid->addWidget(build::label("Label5", "(including cover page)"), pages, 2);
    grid->addWidget(message_, addRow("Label6", "Message:", message_, Qt::AlignTop), 1, 1, 2);
    grid->setColumnStretch(2, 1);

    auto* const print =
        button("Command1", "Print", "Print Cover Sheet to Printer", [this] { this->print(); });
    auto* const leave =
        button("Command2", "Return", "Close Cover Sheet", [this] { this->screens().hide(*this); });
    page().addLayout(grid, 1);
    setFooter({.previous = leave, .main = print});
}

void Form28::opened() {
    askAgain(*addressee_);
}

FaxCover Form28::entered() const {
    return {addressee_->text().toStdString(), faxNumber_->text().toStdString(),
            subject_->text().toStdString(), pageCount_->text().toStdString(),
            message_->toPlainText().toStdString()};
}

void Form28::print() {
    printDocument(services(), faxCoverDocument(entered(), state().user, services().clock));
}

}  // namespace norlaplan
