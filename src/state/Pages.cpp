#include "state/Pages.h"

namespace norlaplan {
namespace {

/// Lets through what is drawn on the pages from `first` to `last`, and counts all of them.
class PageSieve : public Canvas {
  public:
    PageSieve(Canvas& canvas, int first, int last) : canvas_(canvas), first_(first), last_(last) {}

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
    void newPage() override {
        if (isWanted() && page_ < last_) canvas_.newPage();
        ++page_;
    }

    int page() const { return page_; }

  private:
    bool isWanted() const { return first_ <= page_ && page_ <= last_; }

    Canvas& canvas_;
    int first_;
    int last_;
    int page_ = 1;
};

}  // namespace

int pageCount(const Drawing& drawing, Canvas& measure) {
    PageSieve counting(measure, 0, 0);
    drawing.draw(counting);
    return counting.page();
}

Drawing somePages(const Drawing& drawing, int first, int last) {
    return {drawing.paper, [drawing, first, last](Canvas& canvas) {
                PageSieve some(canvas, first, last);
                drawing.draw(some);
            }};
}

Drawing onePage(const Drawing& drawing, int page) {
    return somePages(drawing, page, page);
}

}  // namespace norlaplan
