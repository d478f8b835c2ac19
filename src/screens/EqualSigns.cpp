#include "screens/EqualSigns.h"

#include <QFontMetricsF>
#include <QLabel>
#include <algorithm>

namespace norlaplan {
namespace {

/// The place of the sign in an unmoved label; 0 without one.
double placeOfSign(const QLabel& label) {
    const QString text = label.text().simplified();
    return QFontMetricsF(label.font()).horizontalAdvance(text.left(text.indexOf(QLatin1Char('=')) + 1));
}

}  // namespace

void alignEqualSigns(std::span<QLabel* const> labels) {
    double place = 0.0;
    for (const QLabel* const label : labels)
        place = std::max(place, placeOfSign(*label));
    for (QLabel* const label : labels) {
        // Drawn as rich text, which takes several blanks for one.
        label->setTextFormat(Qt::RichText);
        const double own = placeOfSign(*label);
        label->setIndent(own > 0.0 ? qRound(place - own) : 0);
    }
}

}  // namespace norlaplan
