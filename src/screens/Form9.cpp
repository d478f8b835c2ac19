#include "screens/Form9.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "numbers/Text.h"
#include "screens/Decoding.h"
#include "screens/Form2.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr std::size_t kStylePlace = 6, kSeparatorPlace = 7;  // counted from 0

QPlainTextEdit* makeAdvice() {
    auto* const advice = new QPlainTextEdit;
    advice->setObjectName(QStringLiteral("Text2"));
    advice->setAccessibleName(QStringLiteral("How a part number looks"));
    advice->setReadOnly(true);
    advice->setTabChangesFocus(true);
    advice->setPlainText(
        QStringLiteral("Please enter the exact part number.\n"
                       "An example of a valid part number is K19013XP0.  The\n"
                       "actual number of characters required is either 9 or 10."));
    advice->setFixedHeight(advice->fontMetrics().lineSpacing() * 3 + 2 * theme::kGap);
    return advice;
}

}  // namespace

Form9::Form9(Screens& screens) : Form(screens, forms::kPartNumber, "Part Number Processing") {
    auto* const what = build::heading("Label1", "Enter full Metric part number:");
    entry_ = build::edit("Text1", "9 or 10 digit code");
    entry_->setFont(theme::headingFont());
    build::buddy(*what, *entry_);
    angularSeparators_ = makeSeparators("Frame1", {{{"Option1", "PTFE TOROIDS", "P"},
                                                    {"Option2", "VESPEL TOROIDS", "V"},
                                                    {"Option3", "SPACER BALLS", "S"}}});
    otherSeparators_ =
        makeSeparators("Frame2", {{{"Option5", "PTFE SLUGS", "T"}, {"Option6", "SPACER BALLS", "S"}}});
    auto* const view = button("Command1", "View Data Sheet", "", [this] { decode(); });
    auto* const explain =
        button("Command2", "Explain Part        Numbers", "Show character by character explanation", [this] {
            showText(this->screens(), "\\help\\Break Down.rtf", "Part Number Breakdown",
                     "Exit Part Number Explanation");
        });
    auto* const menu =
        button("Command3", "&Main Menu", "Return to Main Menu", [this] { this->screens().hide(*this); });
    auto* const hint = build::label("Label2", "If the VARDEN Part Number is not understood, Click Here!");
    hint->setWordWrap(true);

    on(entry_, &QLineEdit::textChanged, "Part number", [this] { followEntry(); });
    auto* const explanation = theme::spaced(new QHBoxLayout, 0);
    explanation->addWidget(hint, 1);
    explanation->addWidget(explain);

    QVBoxLayout* const page = &this->page();
    page->addWidget(what);
    page->addWidget(entry_);
    page->addWidget(makeAdvice());
    page->addWidget(angularSeparators_);
    page->addWidget(otherSeparators_);
    page->addStretch();
    page->addLayout(explanation);
    setFooter({.mainMenu = menu, .main = view});
}

QGroupBox* Form9::makeSeparators(const char* name, const std::vector<std::array<const char*, 3>>& options) {
    QGroupBox* const frame = build::frame(name, "Z SEPARATOR OPTIONS");
    auto* const row = theme::spaced(new QHBoxLayout(frame));
    for (const auto& [control, caption, letter] : options) {
        QRadioButton* const option = build::option(control, caption);
        on(option, &QRadioButton::clicked, "Z separator",
           [this, choice = letter] { state().zSeparatorEntered = choice; });
        row->addWidget(option);
    }
    row->addStretch();
    frame->hide();
    return frame;
}

void Form9::opened() {
    entry_->setFocus();
}

void Form9::startAgain() {
    entry_->clear();
    screens().show(forms::kPartNumber);
    entry_->setFocus();
}

void Form9::followEntry() {
    // What is typed is no bearing yet: the one in hand stays until this number is decoded.
    const std::string number = upperCase(entry_->text().toStdString());
    const bool special = number.size() > kSeparatorPlace && number[kSeparatorPlace] == 'Z';
    const bool other = special && (number[kStylePlace] == 'C' || number[kStylePlace] == 'X');
    if (!special) state().zSeparatorEntered.clear();
    angularSeparators_->setVisible(special && !other);
    otherSeparators_->setVisible(special && other);
}

void Form9::decode() {
    state().bearing.zSeparatorChoice = state().zSeparatorEntered;
    screens().show(forms::kMainMenu);
    // The menu was in front during the decode; now it shows the number.
    if (decodeBearing(screens(), entry_->text().toStdString()) != DecodeEnd::BackToEntry)
        screens().show(forms::kMainMenu);
}

}  // namespace norlaplan
