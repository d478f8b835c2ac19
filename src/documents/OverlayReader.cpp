#include "documents/OverlayReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr char kEscape = 27;
constexpr char kEndOfText = 3;
constexpr double kUnitsPerInch = 1016.0;
constexpr double kLeft = 0.25;
constexpr double kBottom = 0.625;
constexpr double kThinLine = 9525.0;
constexpr double kFirstWidth = 19050.0;
/// Ten times what a drawing of a bearing has. A circle takes as long to draw as many lines.
constexpr int kMostLines = 5000;
constexpr int kLinesOfACircle = 10;
/// Inches: a circle that is wider leaves the page on all sides, and takes the longer to draw the wider it is.
constexpr double kWidestCircle = 30.0;
/// An instruction has two points at most; what stands behind them is not read.
constexpr std::size_t kMostNumbers = 4;
/// Beyond these coordinates nothing is on the page.
constexpr double kFarthest = 1e6;

bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

/// One instruction of a plot.
struct Instruction {
    std::string mnemonic;
    std::string parameters;
};

/// Takes a plot apart into its instructions.
class PlotReader {
  public:
    explicit PlotReader(std::string_view plot) : rest_(plot.substr(0, kMostPlotBytes)) {}

    std::optional<Instruction> next() {
        while (rest_.size() >= 2) {
            if (rest_.front() == kEscape) {
                rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size() - 1) + 1);
            } else if (isCapital(rest_[0]) && isCapital(rest_[1])) {
                return take();
            } else {
                rest_.remove_prefix(1);
            }
        }
        return std::nullopt;
    }

  private:
    Instruction take() {
        Instruction instruction{std::string(rest_.substr(0, 2)), ""};
        rest_.remove_prefix(2);
        const bool label = instruction.mnemonic == "LB";
        while (!rest_.empty()) {
            const char c = rest_.front();
            if (!label && isCapital(c)) break;
            rest_.remove_prefix(1);
            if (c == ';' || c == '\r' || c == kEndOfText) break;
            if (!label) instruction.parameters += plain(c);
        }
        return instruction;
    }

    static char plain(char c) {
        if (c == '{') return '(';
        if (c == '}') return ')';
        return c == ',' || c == '\n' || c == '\t' ? ' ' : c;
    }

    std::string_view rest_;
};

/// The first numbers of the parameters, split at blanks.
std::vector<double> numbersOf(const std::string& parameters) {
    std::vector<double> numbers;
    std::size_t at = 0;
    while (numbers.size() < kMostNumbers &&
           (at = parameters.find_first_not_of(' ', at)) != std::string::npos) {
        const std::size_t end = std::min(parameters.find(' ', at), parameters.size());
        const std::optional<double> value = wholeNumberText(parameters.substr(at, end - at));
        numbers.push_back(value && std::fabs(*value) <= kFarthest ? *value : 0.0);
        at = end;
    }
    return numbers;
}

PagePoint onPage(double x, double y) {
    return {kLeft + x / kUnitsPerInch, kBottom + y / kUnitsPerInch};
}

/// How many chords an arc of that radius gets, by inches.
int chordsFor(double radius) {
    if (radius <= 0.03) return 6;
    if (radius <= 0.05) return 10;
    if (radius <= 0.25) return 20;
    return radius <= 1.0 ? 30 : 50;
}

/// The pen's angle as seen from the arc's centre, radians.
double startAngle(PagePoint pen, PagePoint centre) {
    constexpr double kNear = 0.009;
    constexpr double kThreeQuarters = 4.7123889803850005;
    if (std::fabs(pen.x - centre.x) <= kNear) return pen.y < centre.y ? kThreeQuarters : PiValue / 2.0;
    if (std::fabs(pen.y - centre.y) <= kNear) return pen.x > centre.x ? 0.0 : PiValue;
    const double angle = std::atan((pen.y - centre.y) / (pen.x - centre.x));
    return pen.x < centre.x ? angle + PiValue : angle;
}

struct PenColour {
    double number;
    Colour colour;
};
constexpr std::array<PenColour, 4> kPenWidths = {{{0.05, 255}, {0.15, 0}, {0.35, 3394611}, {0.45, 16711680}}};
constexpr std::array<PenColour, 8> kPens = {
    {{1, 255}, {6, 255}, {2, 0}, {15, 0}, {3, 16711680}, {4, 16711680}, {10, 49344}, {13, 16711935}}};

/// The plotter: pen, colour, width and dash.
class Plotter {
  public:
    explicit Plotter(RtfDocument& document) : document_(document) {}

    bool full() const { return drawn_ >= kMostLines; }
    /// Whether nothing was left out so far.
    bool whole() const { return whole_; }

    void run(const Instruction& instruction) {
        const std::string& name = instruction.mnemonic;
        const std::vector<double> numbers = numbersOf(instruction.parameters);
        if ((name == "PU" || name == "PA") && numbers.size() >= 2) pen_ = onPage(numbers[0], numbers[1]);
        if (name == "PD") drawTo(numbers);
        if (name == "PW") takePen(kPenWidths, numbers);
        if (name == "SP") takePen(kPens, numbers);
        if (name == "LT") takeLineType(numbers);
        if (name == "AA" && numbers.size() >= 3) drawArc(onPage(numbers[0], numbers[1]), numbers[2]);
    }

  private:
    void drawTo(const std::vector<double>& numbers) {
        for (std::size_t i = 0; i + 1 < numbers.size() && !full(); i += 2) {
            const PagePoint next = onPage(numbers[i], numbers[i + 1]);
            drawLine(pen_, next);
            pen_ = next;
        }
    }

    void drawLine(PagePoint from, PagePoint to) {
        document_.RTFDATASHEETLINE(from, to, colour_, width_, dash_);
        ++drawn_;
    }

    template <std::size_t N>
    void takePen(const std::array<PenColour, N>& pens, const std::vector<double>& numbers) {
        if (numbers.empty()) return;
        for (const PenColour& pen : pens) {
            if (pen.number != numbers[0]) continue;
            colour_ = pen.colour;
            width_ = kThinLine;
        }
    }

    void takeLineType(const std::vector<double>& numbers) {
        const double type = numbers.empty() ? 0.0 : std::fabs(numbers[0]);
        if (type == 0.0) dash_ = 0;
        if (type == 3.0) dash_ = 6;
        if (type == 5.0) dash_ = 8;
    }

    void drawArc(PagePoint centre, double sweep) {
        const double dx = pen_.x - centre.x;
        const double dy = pen_.y - centre.y;
        const double radius = std::sqrt(dx * dx + dy * dy);
        if (sweep >= 359.0) {
            whole_ = whole_ && radius <= kWidestCircle;
            if (radius > kWidestCircle) return;
            document_.RTFCIRCLE(centre, radius, colour_, width_);
            drawn_ += kLinesOfACircle;
            return;
        }
        if (sweep == 0.0) return;
        const int chords = chordsFor(radius);
        const double start = startAngle(pen_, centre);
        const double end = start + sweep * PiValue / 180.0;
        const double step = (end - start) / chords;
        const auto at = [&](double angle) {
            return PagePoint{centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
        };
        for (int i = 0; i < chords; ++i) {
            drawLine(at(start + i * step), at(start + (i + 1) * step));
        }
        pen_ = at(start + chords * step);
    }

    RtfDocument& document_;
    bool whole_ = true;
    int drawn_ = 0;  ///< lines, with what circles count for
    PagePoint pen_ = onPage(0.0, 0.0);
    Colour colour_ = 0;
    double width_ = kFirstWidth;
    int dash_ = 0;
};

}  // namespace

bool OverlayToRtf(RtfDocument& document, std::string_view hpgl) {
    PlotReader reader(hpgl);
    Plotter plotter(document);
    while (const auto instruction = reader.next()) {
        if (plotter.full()) return false;
        plotter.run(*instruction);
    }
    return plotter.whole();
}

}  // namespace norlaplan
