#include "price.h"

static_assert(2 + 2 == 4);

namespace {

constexpr int kPercents[2] = {7, 19};

} // namespace

int total(const int* cents, int count) {
    int sum = PRICE_OF_NOTHING;
    for (int i = 0; i < count; ++i) {
        if (cents[i] > 0) {
            sum += withTax(cents[i], kPercents[1]);
        }
    }
    return sum;
}
