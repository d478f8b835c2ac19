#include "screens/Theme.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>
#include <QWidget>

#include "paint/BearingIcon.h"

namespace norlaplan::theme {
namespace {

constexpr double kTextPoints = 10.0;
constexpr double kPanelRadius = 10.0;
constexpr int kBesideCellText = 6;
constexpr QSize kArrow(14, 10);

QFont programFont(double points, QFont::Weight weight = QFont::Normal) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSizeF(points);
    font.setWeight(weight);
    return font;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

/// The control with the focus is framed in the highlight colour, too.
void setAccent(QPalette& palette) {
    palette.setColor(QPalette::Highlight, accent());
    palette.setColor(QPalette::HighlightedText, Qt::white);
}

/// Fusion with room around the writing of buttons and fields. Colours come from the desktop's palette.
class ProgramStyle : public QProxyStyle {
  public:
    ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        switch (type) {
            case CT_PushButton:
                return size + QSize(20, 10);
            case CT_LineEdit:
            case CT_ComboBox:
                return size + QSize(6, 8);
            case CT_HeaderSection:
                return headSize(*option, contents, widget);
            default:
                return size;
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* const head = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (element == CE_Header && head != nullptr)
            drawHead(*head, painter, widget);
        else
            QProxyStyle::drawControl(element, option, painter, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
            // A table's texts stand off their columns' edges, and its heads in line with them.
            case PM_HeaderMargin:
                return kBesideCellText;
            case PM_FocusFrameHMargin:
                return kBesideCellText - 1;
            default:
                return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

  private:
    /// The head of a column. The arrow of a sorted one stands above its text, where it takes no room beside
    /// it, and points up for rising values, as in spreadsheets.
    void drawHead(const QStyleOptionHeader& head, QPainter* painter, const QWidget* widget) const {
        constexpr int kMargin = kBesideCellText;
        drawControl(CE_HeaderSection, &head, painter, widget);
        QStyleOptionHeader part(head);
        part.rect = head.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
        drawControl(CE_HeaderLabel, &part, painter, widget);
        if (head.sortIndicator == QStyleOptionHeader::None) return;
        part.rect = QRect(QPoint(head.rect.center().x() - kArrow.width() / 2, head.rect.top()), kArrow);
        const bool rising = head.sortIndicator == QStyleOptionHeader::SortDown;
        part.sortIndicator = rising ? QStyleOptionHeader::SortUp : QStyleOptionHeader::SortDown;
        drawPrimitive(PE_IndicatorHeaderArrow, &part, painter, widget);
    }

    QSize headSize(const QStyleOption& option, const QSize& contents, const QWidget* widget) const {
        const auto* const head = qstyleoption_cast<const QStyleOptionHeader*>(&option);
        QStyleOptionHeader withoutArrow(head == nullptr ? QStyleOptionHeader() : *head);
        withoutArrow.sortIndicator = QStyleOptionHeader::None;
        return QProxyStyle::sizeFromContents(CT_HeaderSection, &withoutArrow, contents, widget);
    }
};

class Panel : public QWidget {
  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(16, 20, 48, 90));
        painter.setBrush(QColor(255, 255, 255, 190));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kPanelRadius, kPanelRadius);
    }
};

}  // namespace

void apply() {
    QApplication::setStyle(new ProgramStyle);
    // The application owns the style.
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    QPalette colours;
    setAccent(colours);
    QApplication::setPalette(colours);
    QApplication::setWindowIcon(bearingIcon());
    QApplication::setFont(programFont(kTextPoints));
    QApplication::setFont(programFont(kTextPoints, QFont::Bold), "QGroupBox");
    // What stands in a group doesn't take over the bold type of its title.
    for (const char* const kind :
         {"QAbstractButton", "QLabel", "QLineEdit", "QComboBox", "QAbstractScrollArea"})
        QApplication::setFont(programFont(kTextPoints), kind);
}

QFont headingFont() {
    return programFont(kTextPoints + 4.0, QFont::Bold);
}
QFont titleFont() {
    return programFont(kTextPoints + 22.0, QFont::Bold);
}

QFont numberFont() {
    return programFont(kTextPoints + 10.0, QFont::Bold);
}

QFont valueFont() {
    QFont font(QStringLiteral("Liberation Mono"));
    font.setPointSizeF(kTextPoints + 1.0);
    return font;
}

QFont listFont(bool longLines) {
    QFont font = QGuiApplication::font();
    font.setFamilies(
        {longLines ? QStringLiteral("Small Fonts") : QStringLiteral("MS Sans Serif"), font.family()});
    if (longLines) font.setPointSizeF(font.pointSizeF() * 7.0 / 8.0);
    return font;
}

QFont noteFont() {
    return programFont(kTextPoints - 1.0);
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
    setAccent(palette);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 124, 148));
    return palette;
}

QPalette paper() {
    return onFixedBackground(Qt::white);
}

QColor goodColour(const QPalette& palette) {
    return isDark(palette) ? QColor(110, 220, 130) : QColor(0, 128, 0);
}

QColor badColour(const QPalette& palette) {
    return isDark(palette) ? QColor(255, 130, 120) : QColor(255, 0, 0);
}

QColor deskColour() {
    return {0xA8, 0xAD, 0xB3};
}

QColor accent() {
    return {190, 84, 0};
}

QColor frameColour() {
    return {200, 30, 30};
}

void makeHeading(QLabel& label) {
    label.setFont(headingFont());
    label.setWordWrap(true);
}

void makeWarning(QLabel& label) {
    QPalette colours = QGuiApplication::palette();
    colours.setColor(QPalette::WindowText, badColour(colours));
    label.setPalette(colours);
}

void makeMark(QLabel& label) {
    label.setAlignment(Qt::AlignCenter);
    label.setStyleSheet(
        QStringLiteral("background: rgb(255, 214, 64); color: rgb(16, 20, 48); border-radius: 9px;"
                       " padding: 3px 12px; font-weight: bold;"));
}

void makeMain(QPushButton& button) {
    button.setFont(programFont(kTextPoints, QFont::Bold));
}

void drawTick(QPainter& painter, const QRectF& square) {
    const QColor green(0, 122, 42);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(green);
    painter.drawEllipse(square);
    const auto at = [&](double x, double y) {
        return QPointF(square.left() + x * square.width(), square.top() + y * square.height());
    };
    painter.setPen(QPen(Qt::white, square.width() * 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({at(0.27, 0.53), at(0.44, 0.70), at(0.74, 0.33)}));
}

QWidget* makePanel(const char* name) {
    auto* const panel = new Panel;
    panel->setObjectName(QString::fromUtf8(name));
    return panel;
}

}  // namespace norlaplan::theme
