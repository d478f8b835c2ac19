#include "documents/FaxCover.h"

#include <algorithm>

#include "documents/DataSheet.h"
#include "documents/FaxPage.h"
#include "documents/LogoMetafile.h"
#include "documents/PrintedPage.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

using faxpage::inches;
using faxpage::tab;

constexpr double kLogoTop = 720.0, kLogoWidth = 2863.0, kLogoHeight = 937.0;
constexpr double kTop = 1000.0, kEnd = 15000.0;  ///< of the writing on a page
constexpr double kHeadLeft = 4600.0;             ///< where the line above the head begins
constexpr double kFootTop = 8600.0;
constexpr double kBody = 12.0;
constexpr double kFoot = 8.0;
constexpr double kTwipsPerPoint = 20.0;
constexpr double kLeading = 1.15;
constexpr const char* kStars = "*********************";

/// Writes down the sheet in twips, and turns the page where it ends.
class FaxWriter {
  public:
    FaxWriter(Canvas& canvas, double top) : canvas_(canvas), y_(top) {}

    double y() const { return y_; }
    void moveTo(double y) { y_ = y; }

    void put(double x, const std::string& text, const TextLook& look) {
        canvas_.text(lineBox(x, papers::kLetter.width, look), text, look);
    }
    void endLine(double points) { y_ += heightOf(points); }
    void line(double x, const std::string& text, const TextLook& look) {
        keepRoom(heightOf(look.points));
        put(x, text, look);
        endLine(look.points);
    }
    void centred(double middle, const std::string& text, TextLook look) {
        look.alignment = Alignment::Centre;
        const double half = canvas_.textWidth(text, look) / 2.0;
        PageBox box = lineBox(middle, inches(middle), look);
        box.left -= half;
        box.right += half;
        canvas_.text(box, text, look);
        endLine(look.points);
    }
    void keepRoom(double height) {
        if (y_ + height <= kEnd) return;
        canvas_.newPage();
        y_ = kTop;
    }

    static double heightOf(double points) { return kLeading * points * kTwipsPerPoint; }

  private:
    PageBox lineBox(double x, double right, const TextLook& look) const {
        const double top = papers::kLetter.height - inches(y_);
        return {inches(x), top, right, top - inches(heightOf(look.points))};
    }

    Canvas& canvas_;
    double y_;
};

void printHead(FaxWriter& page, Canvas& canvas, ClockPort& clock) {
    drawLogo(canvas, {inches(tab(12)), papers::kLetter.height - inches(kLogoTop)}, inches(kLogoWidth));
    page.moveTo(kLogoTop + kLogoHeight + kTwipsPerPoint * kBody);
    page.line(tab(12), clock.longDate(), timesLook(kBody));
    page.endLine(kBody);
    const TextLook stars = timesLook(16.0, true);
    const double middle = kHeadLeft + canvas.textWidth(kStars, stars) * faxpage::kTwipsPerInch / 2.0;
    page.centred(middle, kStars, stars);
    page.centred(middle, "FACSIMILE MESSAGE", timesLook(14.0, true));
    page.centred(middle, kStars, stars);
    page.endLine(kBody);
}

void printAddress(FaxWriter& page, const FaxCover& cover, const UserInfo& user) {
    const TextLook look = timesLook(kBody);
    const auto row = [&](const char* name, const std::string& value) {
        page.put(tab(12), name, look);
        page.line(tab(20), value, look);
    };
    row("To:", cover.addressee);
    row("From:", user.userName);
    row("Re:", cover.subject);
    row("FAX:", cover.faxNumber);
    page.endLine(kBody);
    page.line(tab(12), pagesSentence(cover.pageCount), look);
    page.line(tab(12), "call " + user.userName + " at " + user.userPhone + ".", look);
    page.endLine(kBody);
}

void printMessage(FaxWriter& page, Canvas& canvas, const std::string& message) {
    page.line(tab(12), "MESSAGE:", timesLook(14.0, true));
    const TextLook look = timesLook(kBody);
    const CharacterWidth width = [&](std::string_view character) {
        return canvas.textWidth(character, look) * faxpage::kTwipsPerInch;
    };
    for (const std::string& text : coverMessageLines(message, width))
        page.line(tab(12), text, look);
}

void printFoot(FaxWriter& page, ClockPort& clock) {
    const TextLook look = timesLook(kFoot);
    page.moveTo(std::max(page.y() + FaxWriter::heightOf(kFoot), kFootTop));
    page.keepRoom(2.0 * FaxWriter::heightOf(kFoot));
    page.line(tab(12), kProgramVersion, look);
    page.line(tab(12), "Printed: " + clock.date() + " " + clock.time(), look);
}

}  // namespace

std::string pagesSentence(const std::string& pageCount) {
    const bool one = trimmed(pageCount) == "1";
    return "We are transmitting (" + pageCount + (one ? ") page" : ") pages") +
           " including this one.  If transmission is not complete,";
}

void printFaxCover(const FaxCover& cover, const UserInfo& user, ClockPort& clock, Canvas& canvas) {
    FaxWriter page(canvas, kTop);
    printHead(page, canvas, clock);
    printAddress(page, cover, user);
    printMessage(page, canvas, cover.message);
    printFoot(page, clock);
}

Document faxCoverDocument(const FaxCover& cover, const UserInfo& user, ClockPort& clock) {
    Document document;
    document.title = "Fax Cover Sheet";
    document.fileName = "Fax Cover Sheet.pdf";
    document.filters.clear();
    document.pages.draw = [=, &clock](Canvas& canvas) { printFaxCover(cover, user, clock, canvas); };
    return document;
}

}  // namespace norlaplan
