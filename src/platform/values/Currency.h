#pragma once

#include <QtGlobal>

/// An amount of money as a 64-bit number of ten-thousandths: sums are exact. Values beyond the
/// range saturate at its end.
class Currency {
public:
    Currency() = default;
    /// Rounds to the nearest ten-thousandth. Returns 0 if the value is not finite.
    static Currency FromDouble(double value);
    double ToDouble() const;

    friend Currency operator+(Currency a, Currency b);
    friend Currency operator-(Currency a, Currency b);
    Currency &operator+=(Currency other) { return *this = *this + other; }
    Currency &operator-=(Currency other) { return *this = *this - other; }
    friend bool operator==(Currency, Currency) = default;

private:
    explicit Currency(qint64 tenThousandths) : tenThousandths_(tenThousandths) {}

    qint64 tenThousandths_ = 0;
};
