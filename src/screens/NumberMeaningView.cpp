#include "screens/NumberMeaningView.h"

#include <QAccessible>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>

#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kCellGap = 3;
constexpr int kMeaningLines = 3;  ///< room for all usual meanings, so that the form keeps its height
constexpr double kCorner = 4.0;

QString textOf(const std::string& text) {
    return QString::fromStdString(text);
}

/// The text with a range of numbers, ".0008-.0019", on a line of its own, where it isn't broken.
QString withRangeApart(QString text) {
    static const QRegularExpression range(QStringLiteral(" ?([0-9.]+-[0-9.]+) ?"));
    return text.replace(range, QStringLiteral("\n\\1\n")).trimmed();
}

QString lineFor(const PartNumberMeaning& meaning) {
    if (meaning.wrongPosition != 0) {
        return QStringLiteral("Position %1 is wrong. %2.")
            .arg(meaning.wrongPosition)
            .arg(textOf(meaning.reason));
    }
    if (meaning.places.back().verdict == Verdict::Dropped)
        return QStringLiteral("The fit letter will be dropped: this style has none.");
    return meaning.complete ? QStringLiteral("This part number is complete.") : QStringLiteral(" ");
}

}  // namespace

/// One character in its frame; the first wrong one stands out.
class CharacterCell : public QLabel {
  public:
    explicit CharacterCell(std::size_t position) : position_(position) {
        setObjectName(QStringLiteral("Place%1").arg(position));
        setFont(theme::headingFont());
        setAlignment(Qt::AlignCenter);
        setContentsMargins(2, 4, 2, 4);
        setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) + 8);
    }

    void hold(const NumberPlace& place, bool marked) {
        marked_ = marked;
        typed_ = place.verdict != Verdict::Missing;
        setText(typed_ ? textOf(place.character) : QString());
        setAccessibleName(QStringLiteral("Position %1: %2%3")
                              .arg(position_)
                              .arg(typed_ ? text() : QStringLiteral("nothing yet"))
                              .arg(marked ? QStringLiteral(", wrong") : QString()));
        QPalette colours = parentWidget()->palette();
        if (marked) colours.setColor(QPalette::WindowText, theme::badColour(colours));
        setPalette(colours);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double width = marked_ ? 2.5 : 1.0;
        const QColor frame = marked_ ? theme::badColour(palette()) : palette().color(QPalette::Mid);
        painter.setPen(QPen(frame, width, typed_ ? Qt::SolidLine : Qt::DashLine));
        if (typed_) painter.setBrush(palette().color(QPalette::Base));
        const double inset = width / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
        painter.end();
        QLabel::paintEvent(event);
    }

  private:
    std::size_t position_;
    bool marked_ = false, typed_ = false;
};

NumberMeaningView::NumberMeaningView() {
    setObjectName(QStringLiteral("Meaning"));
    auto* const grid = theme::spaced(new QGridLayout(this), 0);
    grid->setVerticalSpacing(kCellGap);
    const PartNumberMeaning empty = explainPartNumber("", "", UnitMode(), ProgramFolder({}));
    for (std::size_t i = 0; i < codes_.size(); ++i) {
        const NumberCode& code = empty.codes[i];
        auto* const cells = new QHBoxLayout;
        cells->setSpacing(kCellGap);
        for (std::size_t position = code.first; position <= code.last; ++position) {
            places_[position - 1] = new CharacterCell(position);
            cells->addWidget(places_[position - 1]);
        }
        QLabel* const name = build::label("", QString::fromUtf8(code.name));
        codes_[i] = build::label(qPrintable(QStringLiteral("Code%1").arg(i + 1)));
        codes_[i]->setWordWrap(true);
        codes_[i]->setFont(theme::noteFont());
        codes_[i]->setMinimumHeight(kMeaningLines * codes_[i]->fontMetrics().lineSpacing());
        for (QLabel* const label : {name, codes_[i]})
            label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        const int column = static_cast<int>(i);
        grid->addLayout(cells, 0, column);
        grid->addWidget(name, 1, column);
        grid->addWidget(codes_[i], 2, column);
        grid->setColumnStretch(column, 1);
    }
    line_ = build::label("Explanation", QStringLiteral(" "));
    line_->setWordWrap(true);
    grid->setRowMinimumHeight(3, theme::kGap);
    grid->addWidget(line_, 4, 0, 1, static_cast<int>(codes_.size()));
}

void NumberMeaningView::explain(const PartNumberMeaning& meaning) {
    for (std::size_t i = 0; i < codes_.size(); ++i) {
        const NumberCode& code = meaning.codes[i];
        const bool first = code.first <= meaning.wrongPosition && meaning.wrongPosition <= code.last;
        for (std::size_t position = code.first; position <= code.last; ++position) {
            const NumberPlace& place = meaning.places[position - 1];
            places_[position - 1]->hold(place, first && place.verdict == Verdict::Wrong);
        }
        const bool understood = !code.meaning.empty();
        const QString said = textOf(understood ? code.meaning : code.allowed);
        codes_[i]->setText(withRangeApart(said));
        codes_[i]->setAccessibleName(QString::fromUtf8(code.name) + ": " + said);
        codes_[i]->setForegroundRole(understood ? QPalette::WindowText : QPalette::PlaceholderText);
    }
    QPalette colours = palette();
    if (meaning.wrongPosition != 0) colours.setColor(QPalette::WindowText, theme::badColour(colours));
    if (meaning.complete) colours.setColor(QPalette::WindowText, theme::goodColour(colours));
    line_->setPalette(colours);
    line_->setText(lineFor(meaning));
    if (meaning.wrongPosition != 0) {
        QAccessibleEvent alert(line_, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void NumberMeaningView::say(const QString& sentence) {
    line_->setPalette(palette());
    line_->setText(sentence);
}

QString NumberMeaningView::spoken() const {
    return line_->text().trimmed();
}

}  // namespace norlaplan
