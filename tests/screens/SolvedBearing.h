#pragma once

#include <QImage>
#include <QLabel>
#include <array>
#include <cmath>
#include <functional>
#include <set>

#include "screens/FormRegistry.h"
#include "screens/Program.h"

namespace norlaplan::testing {

/// A load case as it is typed.
struct TypedLoads {
    const char *radial = "500", *axial = "200", *moment = "100", *speed = "400";
};

/// The program with every side screen of the load-life screen switched on, and the life of one bearing
/// solved.
struct SolvedBearing : Program {
    explicit SolvedBearing(const char* number = "K19013XP0", const TypedLoads& loads = {},
                           const char* units = "US") {
        Options& options = state.options;
        options.ballShowOption = options.lubeFilmOption = options.pathStressOption = true;
        useUnits(units);
        enterNumber(number);
        openLife(loads.radial, loads.axial, loads.moment, loads.speed);
    }
    /// Presses a button of the load-life screen and lets what opens take its place.
    void open(const char* button) {
        click(forms::kLife, button);
        QCoreApplication::processEvents();
    }
    /// Fails the test unless `leave` on the form in front brings the load-life screen back as it was.
    void compareComingBack(const std::function<void()>& leave) {
        const std::string life = lifeText();
        // A solve would write its own count of iterations.
        state.solver.Iteration = 7777;
        leave();
        QCOMPARE(inFront(), std::string(forms::kLife));
        QCOMPARE(int(state.solver.Iteration), 7777);
        QCOMPARE(lifeText(), life);
    }

    const SolverState& solver() const { return state.solver; }

  private:
    std::string lifeText() {
        std::string texts;
        for (const char* const name : {"Label8", "Label9", "Label10", "Label13"})
            texts += control<QLabel>(forms::kLife, name).text().toStdString() + "\n";
        return texts;
    }
};

/// Fails the test unless the Tab key reaches what can be pressed, typed into or moved on the form in front,
/// and all of it tells a screen reader what it is.
inline void compareKeyboard(Form& window) {
    QApplication::setActiveWindow(&window);
    std::set<const QWidget*> reached;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(&window, Qt::Key_Tab);
        reached.insert(window.focusWidget());
    }
    int checked = 0;
    for (const QWidget* const control : window.findChildren<QWidget*>()) {
        const auto* const button = qobject_cast<const QAbstractButton*>(control);
        const bool entry = button != nullptr || qobject_cast<const QLineEdit*>(control) != nullptr;
        const bool bar = control->objectName().contains("Scroll");
        if (!control->isVisible() || !control->isEnabled() || !(entry || bar)) continue;
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        // Of the options of a group the Tab key reaches one; the arrow keys do the rest.
        if (button != nullptr && button->autoExclusive()) continue;
        QVERIFY2(reached.contains(control), qPrintable(control->objectName()));
        ++checked;
    }
    QVERIFY(checked >= 4);
}

inline QImage imageOf(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Without the frame around it, which tells the focus.
inline QImage insideOf(QWidget& widget) {
    return imageOf(widget).copy(widget.rect().adjusted(2, 2, -2, -2));
}

/// Whether a pixel no farther than `reach` from a place has a line of this colour, however little of it
/// smoothing left over the ground.
inline bool hasInk(const QImage& image, QPointF place, QColor colour, QColor ground, int reach = 1) {
    constexpr double kLeast = 0.3;
    constexpr double kOther = 40.0;
    const auto channels = [](QColor one) { return std::array{one.red(), one.green(), one.blue()}; };
    const auto from = channels(ground), to = channels(colour);
    const auto inkAt = [&](int x, int y) {
        const auto seen = channels(image.pixelColor(x, y));
        double along = 0.0, whole = 0.0, off = 0.0;
        for (std::size_t i = 0; i < 3; ++i) {
            along += (seen[i] - from[i]) * (to[i] - from[i]);
            whole += (to[i] - from[i]) * (to[i] - from[i]);
        }
        const double share = along / whole;
        for (std::size_t i = 0; i < 3; ++i)
            off = std::max(off, std::abs(seen[i] - from[i] - share * (to[i] - from[i])));
        return share >= kLeast && off <= kOther;
    };
    for (int y = qRound(place.y()) - reach; y <= qRound(place.y()) + reach; ++y) {
        for (int x = qRound(place.x()) - reach; x <= qRound(place.x()) + reach; ++x) {
            if (image.valid(x, y) && inkAt(x, y)) return true;
        }
    }
    return false;
}

}  // namespace norlaplan::testing
