#include "screens/Theme.h"

#include <QApplication>
#include <QLabel>
#include <QStyleFactory>
#include <QWidget>

namespace norlaplan::theme {
namespace {

constexpr double kTextPoints = 10.0;

QFont programFont(double points, QFont::Weight weight = QFont::Normal) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSizeF(points);
    font.setWeight(weight);
    return font;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

}  // namespace

void apply(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(programFont(kTextPoints));
    // Only distances here: colours come from the desktop's palette, so that dark themes hold.
    application.setStyleSheet(
        QStringLiteral("QPushButton { padding: 6px 16px; }"
                       "QLineEdit { padding: 4px 6px; }"
                       "QComboBox { padding: 4px 6px; }"
                       "QGroupBox { font-weight: bold; margin-top: 10px; padding-top: 12px;"
                       "  border: 1px solid palette(mid); border-radius: 6px; }"
                       "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 5px; }"));
}

QFont headingFont() {
    return programFont(kTextPoints + 4.0, QFont::Bold);
}
QFont titleFont() {
    return programFont(kTextPoints + 22.0, QFont::Bold);
}

QFont valueFont() {
    QFont font(QStringLiteral("Liberation Mono"));
    font.setPointSizeF(kTextPoints + 1.0);
    return font;
}

QColor menuBackground(const std::string& unitSystem) {
    return unitSystem == "METRIC" ? QColor(192, 255, 192) : QColor(128, 128, 255);
}

QPalette onFixedBackground(const QColor& background) {
    QPalette palette;
    const QColor writing(16, 20, 48);
    const QColor button(246, 247, 251);
    palette.setColor(QPalette::Window, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, writing);
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, QColor(232, 234, 242));
    palette.setColor(QPalette::Mid, QColor(170, 174, 194));
    palette.setColor(QPalette::Dark, QColor(120, 124, 148));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 124, 148));
    return palette;
}

QPalette paper() {
    return onFixedBackground(Qt::white);
}

QColor goodColour(const QPalette& palette) {
    return isDark(palette) ? QColor(110, 220, 130) : QColor(0, 120, 40);
}

QColor badColour(const QPalette& palette) {
    return isDark(palette) ? QColor(255, 130, 120) : QColor(190, 20, 20);
}

void makeHeading(QLabel& label) {
    label.setFont(headingFont());
    label.setWordWrap(true);
}

void makePanel(QWidget& panel) {
    panel.setAttribute(Qt::WA_StyledBackground);
    panel.setStyleSheet(
        QStringLiteral(
            ".QWidget#%1 { background: rgba(255, 255, 255, 190); border: 1px solid rgba(16, 20, 48, 90);"
            " border-radius: 10px; }")
            .arg(panel.objectName()));
}

}  // namespace norlaplan::theme
