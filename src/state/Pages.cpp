#include "state/Pages.h"

namespace norlaplan {
namespace {

/// Lets through what is drawn on one page, and counts them.
class PageSieve : public Canvas {
  public:
    PageSieve(Canvas& canvas, int wanted) : canvas_(canvas), wanted_(wanted) {}

    void line(PagePoint from, PagePoint to, const PagePen& pen) override {
        if (isWanted()) canvas_.line(from, to, pen);
    }
    void rectangle(const PageBox& box, std::optional<Colour> fill,
                   const std::optional<PagePen>& frame) override {
        if (isWanted()) canvas_.rectangle(box, fill, frame);
    }
    void circle(PagePoint centre, double radius, const PagePen& pen) override {
        if (isWanted()) canvas_.circle(centre, radius, pen);
    }
    void text(const PageBox& box, std::string_view text, const TextLook& look) override {
        if (isWanted()) canvas_.text(box, text, look);
    }
    double textWidth(std::string_view text, const TextLook& look) override {
        return canvas_.textWidth(text, look);
    }
    void newPage() override { ++page_; }

    int page() const { return page_; }

  private:
    bool isWanted() const { return page_ == wanted_; }

    Canvas& canvas_;
    int wanted_;
    int page_ = 1;
};

}  // namespace

int pageCount(const Drawing& drawing, Canvas& measure) {
    PageSieve counting(measure, 0);
    drawing.draw(counting);
    return counting.page();
}

Drawing onePage(const Drawing& drawing, int page) {
    return {drawing.paper, [drawing, page](Canvas& canvas) {
                PageSieve one(canvas, page);
                drawing.draw(one);
            }};
}

}  // namespace norlaplan
