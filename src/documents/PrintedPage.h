#pragma once

#include <string>
#include <vector>

#include "state/Drawing.h"
#include "state/Ports.h"

namespace norlaplan {

// The layout that all printed reports share: a thin frame a quarter inch within the paper, and the text in
// it. These are the edges of the text on an upright letter page.
constexpr double kPageLeft = 0.9;
constexpr double kPageRight = papers::kLetter.width - kPageLeft;

/// Writes texts down the page, line by line.
class PageWriter {
  public:
    PageWriter(Canvas& canvas, double top) : canvas_(canvas), y_(top) {}

    double y() const { return y_; }
    void skip(double inches) { y_ -= inches; }

    /// A text at x, without moving on.
    void put(double x, const std::string& text, const TextLook& look);
    /// A text that ends at x.
    void putRight(double x, const std::string& text, const TextLook& look);
    /// Ends the line: moves down by its height.
    void endLine(double points);
    /// A line of its own.
    void line(const std::string& text, const TextLook& look);
    /// Pieces one behind the other, of which "10" behind an "L" stands lower: L10.
    void lifeText(double x, const std::string& before, const std::string& behind, const TextLook& look);

  private:
    Canvas& canvas_;
    double y_;
};

TextLook timesLook(double points, bool bold = false, Colour colour = colours::kBlack);

/// The frame of a page.
void drawPageBorder(Canvas& canvas, const Paper& paper = papers::kLetter);
/// The same with the maker's mark at the page's head.
void drawPageFrame(Canvas& canvas, const Paper& paper = papers::kLetter);
/// The last line of a page: program, when it was printed, and `more` (such as "Page 1 of 2").
void drawPageFooter(Canvas& canvas, ClockPort& clock, const std::string& more = "",
                    const Paper& paper = papers::kLetter);

}  // namespace norlaplan
