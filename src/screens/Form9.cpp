#include "screens/Form9.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QStringListModel>
#include <QVBoxLayout>

#include "numbers/Text.h"
#include "screens/Decoding.h"
#include "screens/Form2.h"
#include "screens/FormBuilder.h"
#include "screens/NumberField.h"
#include "screens/NumberMeaningView.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/NumberHistory.h"

namespace norlaplan {
namespace {

constexpr const char* kTip = "9 or 10 digit code";
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
    makeEntry();
    build::buddy(*what, *entry_);
    meaning_ = new NumberMeaningView;
    angularSeparators_ = makeSeparators("Frame1", {{{"Option1", "PTFE TOROIDS", "P"},
                                                    {"Option2", "VESPEL TOROIDS", "V"},
                                                    {"Option3", "SPACER BALLS", "S"}}});
    otherSeparators_ =
        makeSeparators("Frame2", {{{"Option5", "PTFE SLUGS", "T"}, {"Option6", "SPACER BALLS", "S"}}});
    view_ = button("Command1", "View Data Sheet", "", [this] { decode(); });
    auto* const explain =
        button("Command2", "Explain Part        Numbers", "Show character by character explanation", [this] {
            showText(this->screens(), "\\help\\Break Down.rtf", "Part Number Breakdown",
                     "Exit Part Number Explanation");
        });
    auto* const menu =
        button("Command3", "&Main Menu", "Return to Main Menu", [this] { this->screens().hide(*this); });
    auto* const hint = build::label("Label2", "If the VARDEN Part Number is not understood, Click Here!");
    hint->setWordWrap(true);

    auto* const explanation = theme::spaced(new QHBoxLayout, 0);
    explanation->addWidget(hint, 1);
    explanation->addWidget(explain);

    QVBoxLayout* const page = &this->page();
    page->addWidget(what);
    page->addWidget(entry_);
    page->addWidget(meaning_);
    page->addWidget(makeAdvice());
    page->addWidget(angularSeparators_);
    page->addWidget(otherSeparators_);
    page->addStretch();
    page->addLayout(explanation);
    setFooter({.mainMenu = menu, .main = view_});
    showMeaning();
}

void Form9::makeEntry() {
    entry_ = build::edit("Text1", kTip);
    entry_->setFont(theme::headingFont());
    on(entry_, &QLineEdit::textChanged, "Part number", [this] { followEntry(); });

    offered_ = new QStringListModel(this);
    completer_ = new QCompleter(offered_, this);
    completer_->setCaseSensitivity(Qt::CaseInsensitive);
    completer_->popup()->setFont(theme::valueFont());
    entry_->setCompleter(completer_);
    // After the completer has put its own filter there, so that this one comes first.
    completer_->popup()->installEventFilter(this);
    entry_->installEventFilter(this);
}

bool Form9::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return Form::eventFilter(watched, event);
    QAbstractItemView& list = *completer_->popup();
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched == &list && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        // What is chosen in the list stands in the field already: one Enter decodes it.
        list.hide();
        view_->click();
        return true;
    }
    if (watched == entry_ && key == Qt::Key_Down && !list.isVisible()) {
        offerAll();
        return true;
    }
    return Form::eventFilter(watched, event);
}

/// Lists every number that was entered before and begins with what stands in the field.
void Form9::offerAll() {
    completer_->setCompletionPrefix(entry_->text());
    completer_->complete();
}

QGroupBox* Form9::makeSeparators(const char* name, const std::vector<std::array<const char*, 3>>& options) {
    QGroupBox* const frame = build::frame(name, "Z SEPARATOR OPTIONS");
    auto* const row = theme::spaced(new QHBoxLayout(frame));
    for (const auto& [control, caption, letter] : options) {
        QRadioButton* const option = build::option(control, caption);
        on(option, &QRadioButton::clicked, "Z separator", [this, choice = letter] {
            state().zSeparatorEntered = choice;
            showMeaning();
        });
        row->addWidget(option);
    }
    row->addStretch();
    frame->hide();
    return frame;
}

void Form9::opened() {
    entered_ = enteredNumbers(services().userFiles);
    askAgain(*entry_);
    showMeaning();
}

void Form9::cameBack() {
    // In the middle of typing nothing is selected, or the next letter would wipe the number.
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
    showMeaning();
}

void Form9::showMeaning() {
    const std::string typed = entry_->text().toStdString();
    QStringList others;
    for (const std::string& number : entered_) {
        // A number that stands there whole needs no offer.
        if (number != upperCase(typed)) others << QString::fromStdString(number);
    }
    offered_->setStringList(others);
    meaning_->explain(explainPartNumber(typed, state().zSeparatorEntered, state().units, services().folder));
    entry_->setAccessibleDescription((QString(kTip) + (". " + meaning_->spoken())).trimmed());
}

void Form9::decode() {
    state().bearing.zSeparatorChoice = state().zSeparatorEntered;
    screens().show(forms::kMainMenu);
    const QString typed = entry_->text();
    const DecodeEnd end = decodeBearing(screens(), typed.toStdString());
    if (end == DecodeEnd::BackToEntry) {
        if (!typed.isEmpty()) meaning_->say(typed + " was refused. Ctrl+Z brings it back.");
        return;
    }
    if (end == DecodeEnd::Decoded) rememberNumber(services().userFiles, state().bearing.partNumber);
    // The menu was in front during the decode; now it shows the number.
    screens().show(forms::kMainMenu);
}

}  // namespace norlaplan
