#include "screens/Accelerators.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>

#include "screens/EntryLabel.h"

namespace norlaplan::accelerators {
namespace {

QChar statedLetter(const QString& caption) {
    const auto mark = caption.indexOf(QLatin1Char('&'));
    return mark < 0 ? QChar() : (mark + 1 < caption.size() ? caption[mark + 1] : QChar()).toUpper();
}

/// The letters of a caption, the initials of its words first.
QString lettersOf(const QString& caption) {
    QString initials, others;
    bool inWord = false;
    for (const QChar letter : caption) {
        const bool usable = letter.unicode() < 128 && letter.isLetter();
        if (usable) (inWord ? others : initials).append(letter.toUpper());
        inWord = letter.isLetterOrNumber();
    }
    return initials + others;
}

/// Each caption takes a letter; one that finds all of its letters held asks their holders to move on.
class Choice {
  public:
    explicit Choice(const QList<QString>& captions) : letters_(captions.size()) {
        for (const QString& caption : captions)
            wishes_.append(lettersOf(caption));
    }
    void fix(qsizetype caption, QChar letter) {
        letters_[caption] = letter;
        fixed_.insert(letter);
    }
    bool isFixed(QChar letter) const { return fixed_.contains(letter); }
    bool place(qsizetype caption, QSet<QChar>& tried) {
        for (const QChar letter : wishes_[caption]) {
            if (fixed_.contains(letter) || tried.contains(letter)) continue;
            tried.insert(letter);
            const auto holder = letters_.indexOf(letter);
            if (holder >= 0 && !place(holder, tried)) continue;
            letters_[caption] = letter;
            return true;
        }
        return false;
    }
    void block(QChar letter) { fixed_.insert(letter); }
    const QList<QChar>& letters() const { return letters_; }

  private:
    QList<QString> wishes_;
    QList<QChar> letters_;
    QSet<QChar> fixed_;
};

QList<QChar> letterButtons(QWidget& window, const QString& taken) {
    QList<QAbstractButton*> buttons;
    QList<QString> captions;
    const auto add = [&](QAbstractButton* button) {
        if (button->text().isEmpty() || button->objectName().startsWith(QLatin1String("qt_"))) return;
        buttons.append(button);
        captions.append(button->text());
    };
    // Where a form has more of them than there are letters, those that act have theirs.
    const auto all = window.findChildren<QAbstractButton*>();
    for (QAbstractButton* const button : all) {
        if (qobject_cast<QPushButton*>(button) != nullptr) add(button);
    }
    for (QAbstractButton* const button : all) {
        if (qobject_cast<QPushButton*>(button) == nullptr) add(button);
    }
    QList<QChar> letters = choose(captions, taken);
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const bool none = letters[i].isNull();
        buttons[i]->setShortcut(none ? QKeySequence()
                                     : QKeySequence(Qt::ALT | Qt::Key(letters[i].unicode())));
    }
    return letters;
}

/// The fields take what the buttons leave.
void letterFields(QWidget& window, const QString& taken) {
    QList<EntryLabel*> labels;
    QList<QString> captions;
    for (QLabel* const label : window.findChildren<QLabel*>()) {
        auto* const entry = dynamic_cast<EntryLabel*>(label);
        if (entry == nullptr || entry->buddy() == nullptr) continue;
        labels.append(entry);
        captions.append(entry->text());
    }
    const QList<QChar> letters = choose(captions, taken);
    for (qsizetype i = 0; i < labels.size(); ++i)
        labels[i]->setLetter(letters[i]);
}

}  // namespace

QList<QChar> choose(const QList<QString>& captions, const QString& taken) {
    Choice choice(captions);
    for (const QChar letter : taken)
        choice.block(letter.toUpper());
    for (qsizetype i = 0; i < captions.size(); ++i) {
        const QChar stated = statedLetter(captions[i]);
        if (!stated.isNull() && !choice.isFixed(stated)) choice.fix(i, stated);
    }
    for (qsizetype i = 0; i < captions.size(); ++i) {
        QSet<QChar> tried;
        if (choice.letters()[i].isNull()) choice.place(i, tried);
    }
    return choice.letters();
}

QString marked(QString caption, QChar letter) {
    if (!letter.isNull() && statedLetter(caption) == letter) return caption;
    caption.remove(QLatin1Char('&'));
    // The initial of a word, where there is one, draws the eye more than a letter within.
    qsizetype place = -1;
    for (qsizetype i = 0; i < caption.size() && !letter.isNull(); ++i) {
        if (caption[i].toUpper() != letter) continue;
        const bool initial = i == 0 || !caption[i - 1].isLetterOrNumber();
        if (place < 0 || initial) place = i;
        if (initial) break;
    }
    return place < 0 ? caption : caption.insert(place, QLatin1Char('&'));
}

void assign(QWidget& window, const QMenuBar* menus) {
    QString taken;
    if (menus != nullptr) {
        for (const QAction* const menu : menus->actions())
            taken += statedLetter(menu->text());
    }
    const QList<QChar> letters = letterButtons(window, taken);
    for (const QChar letter : letters) {
        if (!letter.isNull()) taken += letter;
    }
    letterFields(window, taken);
}

void mark(QMenu& menu) {
    QList<QAction*> items;
    QList<QString> captions;
    for (QAction* const item : menu.actions()) {
        if (item->isSeparator()) continue;
        items.append(item);
        captions.append(item->text());
        if (item->menu() != nullptr) mark(*item->menu());
    }
    const QList<QChar> letters = choose(captions);
    for (qsizetype i = 0; i < items.size(); ++i)
        items[i]->setText(marked(captions[i], letters[i]));
}

}  // namespace norlaplan::accelerators
