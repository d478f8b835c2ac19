#include "fits/TorqueCurve.h"

#include "fits/PairTorque.h"
#include "fits/RowTorque.h"

namespace norlaplan {
namespace {

constexpr double kPreloadsPerInch = 10000.0;

template <typename Model>
void fill(const BearingSpec& bearing, TorqueCurve& curve, Model model) {
    TorqueCurve computed;
    computed.partNumber = bearing.partNumber;
    for (int i = 1; i <= TorqueCurve::kPoints; ++i) {
        const double preload = i / kPreloadsPerInch;
        computed.row(i) = {preload, model.torqueAt(preload)};
    }
    curve = computed;
}

}  // namespace

void computeTorqueCurve(const BearingSpec& bearing, TorqueCurve& curve, MessagePort& messages) {
    const std::string& style = bearing.styleLetter;
    if (style == "X" || style == "C") fill(bearing, curve, RowTorque(bearing, messages));
    if (style == "F" || style == "B") fill(bearing, curve, PairTorque(bearing, messages));
}

}  // namespace norlaplan
