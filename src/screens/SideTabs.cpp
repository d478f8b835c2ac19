#include "screens/SideTabs.h"

#include <QStyleOptionFocusRect>
#include <QStyleOptionTab>
#include <QStylePainter>
#include <QTabBar>
#include <algorithm>

namespace norlaplan {
namespace {

constexpr int kBeside = 10, kAbove = 8, kBehindIcon = 8;

/// Qt writes tabs at the side from bottom to top; these are read as any other line.
class LevelTabBar : public QTabBar {
  public:
    LevelTabBar() { setMouseTracking(true); }

  protected:
    QSize tabSizeHint(int index) const override {
        const int text = fontMetrics().horizontalAdvance(tabText(index));
        const int icon = iconSize().width();
        return {icon + kBehindIcon + text + 2 * kBeside,
                std::max(iconSize().height(), fontMetrics().height()) + 2 * kAbove};
    }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        for (int i = 0; i < count(); ++i) {
            if (i != currentIndex()) paintTab(painter, i);
        }
        // The open one lies over its neighbours.
        if (currentIndex() >= 0) paintTab(painter, currentIndex());
    }

  private:
    void paintTab(QStylePainter& painter, int index) {
        QStyleOptionTab option;
        initStyleOption(&option, index);
        painter.drawControl(QStyle::CE_TabBarTabShape, option);
        QRect inside = tabRect(index).adjusted(kBeside, 0, -kBeside / 2, 0);
        QRect picture(QPoint(), iconSize());
        picture.moveCenter(inside.center());
        picture.moveLeft(inside.left());
        tabIcon(index).paint(&painter, picture);
        inside.setLeft(picture.right() + kBehindIcon);
        painter.drawItemText(inside, Qt::AlignLeft | Qt::AlignVCenter, palette(), isTabEnabled(index),
                             tabText(index), QPalette::WindowText);
        if (!hasFocus() || index != currentIndex()) return;
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = tabRect(index).adjusted(3, 3, -3, -3);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
};

}  // namespace

SideTabs::SideTabs(const char* name) {
    setObjectName(QString::fromUtf8(name));
    setTabBar(new LevelTabBar);
    tabBar()->setObjectName(objectName() + QStringLiteral("Tabs"));
    tabBar()->setAccessibleName(QStringLiteral("Sections"));
    setTabPosition(QTabWidget::West);
    tabBar()->setExpanding(false);
    tabBar()->setUsesScrollButtons(false);
}

}  // namespace norlaplan
