#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include "state/ProgramState.h"

class QLabel;
class QPainter;
class QPushButton;
class QRectF;
class QWidget;

/// The look of the program, defined here once and used by every form.
namespace norlaplan::theme {

constexpr int kMargin = 20;       ///< between a window's edge and its contents
constexpr int kFrameMargin = 14;  ///< between a frame and what it holds
constexpr int kGap = 10;          ///< between controls that belong together
constexpr int kWideGap = 22;      ///< between groups

/// Sets the style and the type of the whole program. Colours stay those of the desktop, light or dark.
void apply();

QFont headingFont();  ///< names the window or a section
QFont titleFont();    ///< the product's name on the start screen
QFont numberFont();   ///< the part number in hand
QFont valueFont();    ///< figures that stand under each other
QFont noteFont();     ///< what stands under something and says more about it

/// The list of search results: the usual one, and a smaller one for the long lines of sets with spacers.
QFont listFont(bool longLines);

/// Colour of the main menu's background: the mode of the units shows there.
QColor menuBackground(const std::string& unitSystem);

/// Dark writing and light buttons on `background`, whatever the desktop's theme: for windows whose
/// background colour is fixed.
QPalette onFixedBackground(const QColor& background);

/// White paper with black writing: drawings and graphs, in a dark theme too.
QPalette paper();

QColor goodColour(const QPalette& palette);  ///< within the limit
QColor badColour(const QPalette& palette);   ///< over the limit

QColor deskColour();   ///< around a page that is looked at
QColor accent();       ///< marks the control with the focus and what is selected, in every window
QColor frameColour();  ///< of a frame drawn over white paper

void makeHeading(QLabel& label);
/// In the colour of what is over its limit.
void makeWarning(QLabel& label);
/// A mark that draws the eye to where to go on.
void makeMark(QLabel& label);
/// The button that leads on.
void makeMain(QPushButton& button);
/// A white tick on a green disc in this square: done, or chosen.
void drawTick(QPainter& painter, const QRectF& square);
/// A light panel with a quiet border, for groups on a coloured background.
QWidget* makePanel(const char* name);

/// Layouts with the program's margins and gaps.
template <typename Layout>
Layout* spaced(Layout* layout, int margin = kMargin) {
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(kGap);
    return layout;
}

}  // namespace norlaplan::theme
