#include "loaddist/LifeFactor.h"

#include <array>
#include <cstddef>

#include "numbers/Single.h"

namespace norlaplan {
namespace {

constexpr std::size_t kPoints = 22;
using Row = std::array<Single, kPoints>;

const Row& lambdas() {
    static const Row kLambdas = {0.5879, 0.6874, 0.7861, 0.8927, 1.0,    1.0528, 1.1818, 1.2766,
                                 1.3938, 1.5748, 1.81,   1.9847, 2.1996, 2.3879, 3.0855, 3.9642,
                                 5.0068, 5.9938, 6.9933, 8.0208, 9.0818, 10.0};
    return kLambdas;
}

const Row& factors() {
    static const Row kFactors = {0.164,  0.2439, 0.3238, 0.4016, 0.5194, 0.6203, 0.9946, 1.2343,
                                 1.4992, 1.7663, 2.0039, 2.1279, 2.248,  2.3298, 2.518,  2.6515,
                                 2.7503, 2.8134, 2.8702, 2.9206, 2.9627, 3.0};
    return kFactors;
}

}  // namespace

double LifeFactor(double lambda) {
    const Row& table = lambdas();
    const Row& factor = factors();
    if (lambda < table.front()) return 0.16;  // not the first point's factor
    if (lambda >= 10.0) return 3.0;
    if (lambda == table.front()) return factor.front();
    std::size_t n = 0;
    while (lambda > table[n + 1])
        ++n;
    const double share = (lambda - table[n]) / (table[n + 1] - table[n]);
    return factor[n] + share * (factor[n + 1] - factor[n]);
}

}  // namespace norlaplan
