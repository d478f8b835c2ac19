#pragma once

#include <QImage>
#include <QLabel>
#include <algorithm>
#include <string>

#include "screens/Program.h"

namespace norlaplan::testing {

/// A screen that is opened for a bearing from the main menu and shows a picture of 8.5 by 5 inches in the
/// middle of its room.
struct GraphScreen : Program {
    GraphScreen(const char* form, const char* menuButton) : form_(form), menuButton_(menuButton) {}

    void openFor(const std::string& number) {
        enterNumber(number.c_str());
        click(forms::kMainMenu, menuButton_);
        QCoreApplication::processEvents();
    }
    /// Clicks a button of the screen.
    void press(const char* button) { click(form_, button); }
    QWidget& picture(const char* name = "Picture1") { return control<QWidget>(form_, name); }
    QImage seen(const char* name = "Picture1") { return picture(name).grab().toImage(); }
    QLabel& label(const char* name) { return control<QLabel>(form_, name); }

    /// The pixel of a place of the picture, inches from its lower left corner.
    QPoint pixelOf(double x, double y, const char* name = "Picture1") {
        const QWidget& view = picture(name);
        const double scale = std::min(view.width() / 8.5, view.height() / 5.0);
        return {qRound((view.width() - 8.5 * scale) / 2.0 + x * scale),
                qRound((view.height() - 5.0 * scale) / 2.0 + (5.0 - y) * scale)};
    }
    /// What the read-out says with the pointer at this place; empty when it says nothing.
    QString readoutAt(double x, double y, const char* name = "Picture1") {
        QTest::mouseMove(&picture(name), {1, 1});
        QTest::mouseMove(&picture(name), pixelOf(x, y, name));
        QLabel& readout = label("Label1");
        return readout.isVisible() ? readout.text() : QString();
    }
    /// How many pixels of the picture have that colour.
    int pixelsOf(QRgb colour, const char* name = "Picture1") {
        const QImage image = seen(name);
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == colour ? 1 : 0;
        }
        return count;
    }
    /// How many pixels show a bright line of that hue, degrees, however thin it is drawn.
    int pixelsOfHue(int hue) {
        const QImage image = seen();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += isBright(image.pixelColor(x, y), hue) ? 1 : 0;
        }
        return count;
    }
    static bool isBright(const QColor& colour, int hue) {
        const int apart = std::abs(colour.hsvHue() - hue);
        return colour.hsvSaturation() > 70 && colour.value() > 200 && std::min(apart, 360 - apart) < 12;
    }
    bool printed(const std::string& text) const { return printer.canvas.hasText(text); }
    std::string saved(const char* name) const { return files.read(name); }
    /// The next save goes to this file, of the kind of the filter counted from 1.
    void saveTo(const char* name, int filter) { saveDialog.choice = SaveChoice{files.path() / name, filter}; }

  private:
    const char *form_, *menuButton_;
};

/// The styles and fit letters for which a screen opens: a clearance, a preload, none specified and, where the
/// style does without, no letter.
inline std::vector<std::string> numbersOf(const std::vector<std::string>& styles) {
    std::vector<std::string> numbers;
    for (const std::string& style : styles) {
        for (const char* const letter : {"E", "R", "Z", ""}) {
            const bool pair = style == "B" || style == "F";
            if (!pair || *letter != '\0') numbers.push_back("K19013" + style + "P0" + letter);
        }
    }
    return numbers;
}

}  // namespace norlaplan::testing
