#include "platform/values/Currency.h"

#include <cmath>
#include <limits>

namespace {

constexpr double scale = 10000.0;
constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();

} // namespace

Currency Currency::FromDouble(double value) {
    if (!std::isfinite(value)) {
        return {};
    }
    const double scaled = value * scale;
    if (scaled >= static_cast<double>(largest)) {
        return Currency(largest);
    }
    if (scaled <= static_cast<double>(smallest)) {
        return Currency(smallest);
    }
    return Currency(std::llround(scaled));
}

double Currency::ToDouble() const {
    return static_cast<double>(tenThousandths_) / scale;
}

Currency operator+(Currency a, Currency b) {
    qint64 sum = 0;
    if (__builtin_add_overflow(a.tenThousandths_, b.tenThousandths_, &sum)) {
        return Currency(a.tenThousandths_ > 0 ? largest : smallest);
    }
    return Currency(sum);
}

Currency operator-(Currency a, Currency b) {
    qint64 difference = 0;
    if (__builtin_sub_overflow(a.tenThousandths_, b.tenThousandths_, &difference)) {
        // 0 - smallest overflows upwards, so 0 counts as positive here.
        return Currency(a.tenThousandths_ >= 0 ? largest : smallest);
    }
    return Currency(difference);
}
