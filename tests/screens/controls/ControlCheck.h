#pragma once

#include <QRegularExpression>

#include "screens/controls/ControlReader.h"
#include "screens/controls/ControlRow.h"

namespace norlaplan::testing {

/// Whether a control shows a row's text: '~' is a number, '*' any words.
inline bool reads(const QString& shown, const char* text) {
    QString pattern = QRegularExpression::escape(QString::fromUtf8(text));
    pattern.replace("\\~", "[-+]?(\\d[\\d,]*)?\\.?\\d+(E[-+]\\d+)?").replace("\\*", ".*\\S.*");
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern),
                                   QRegularExpression::DotMatchesEverythingOption);
    return whole.match(shown).hasMatch();
}

/// Compares a form with the rows of the table under the facts of a scene.
class ControlCheck {
  public:
    ControlCheck(Form& form, std::span<const ControlRow> rows, Facts facts)
        : reader_(form), facts_(std::move(facts)) {
        for (const ControlRow& row : rows) {
            if (form.objectName() == row.form) rows_[row.control].push_back(&row);
        }
        for (const auto& [name, own] : rows_)
            checkControl(name, own);
        for (const QString& name : reader_.interactive()) {
            if (!rows_.contains(name)) differ(name, "has no row");
        }
    }

    /// A line for each difference, beginning with the control's name.
    const QStringList& differences() const { return differences_; }

  private:
    using Rows = std::vector<const ControlRow*>;

    void differ(const QString& name, const QString& what) { differences_ << name + " " + what; }

    void checkControl(const QString& name, const Rows& own) {
        Rows met;
        std::copy_if(own.begin(), own.end(), std::back_inserter(met),
                     [&](const ControlRow* row) { return applies(*row, facts_); });
        const std::vector<QObject*> found = reader_.find(name);
        // Some are made only when they are first shown.
        if (found.empty() && met.empty()) return;
        if (found.size() != 1) return differ(name, found.empty() ? "is missing" : "is there twice");
        QObject& control = *found.front();
        if (!ControlReader::isOfItsKind(control)) differ(name, "is of another kind than its name says");
        if (met.size() > 1) return differ(name, "has two rows for one scene");
        if (ControlReader::isShown(control) == met.empty())
            return differ(name, met.empty() ? "is shown" : "is hidden");
        if (!met.empty()) checkRow(name, control, *met.front());
    }

    void checkRow(const QString& name, QObject& control, const ControlRow& row) {
        const QString text = ControlReader::textOf(control), tip = ControlReader::tipOf(control);
        const bool ownText = row.origin == kOwnText || row.origin == kOwn;
        const bool ownTip = row.origin == kOwnTip || row.origin == kOwn;
        if (row.text != kAnyText && !reads(text, row.text))
            differ(name, saying("reads", text, row.text, ownText));
        if (tip != QString::fromUtf8(row.tip)) differ(name, saying("has the tip", tip, row.tip, ownTip));
        if (ControlReader::isEnabled(control) != holds(row.enabledWhen, facts_))
            differ(name, ControlReader::isEnabled(control) ? "is enabled" : "is disabled");
        const bool marked = row.markedWhen != nullptr && holds(row.markedWhen, facts_);
        if (ControlReader::isMarked(control) != marked) differ(name, marked ? "is not marked" : "is marked");
        if (!ControlReader::speaks(control)) return;
        if (ControlReader::spoken(control, QAccessible::Name).trimmed().isEmpty())
            differ(name, "has no accessible name");
        if (!ControlReader::spoken(control, QAccessible::Description).contains(row.tip))
            differ(name, "doesn't say its tip");
    }

    static QString saying(const char* what, const QString& is, const char* row, bool own) {
        return QString("%1 \"%2\", not \"%3\" as %4")
            .arg(what, is, QString::fromUtf8(row),
                 own ? "its row says, in words of the program's own" : "stated");
    }

    ControlReader reader_;
    Facts facts_;
    std::map<QString, Rows> rows_;
    QStringList differences_;
};

}  // namespace norlaplan::testing
