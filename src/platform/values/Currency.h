#pragma once

#include <QtGlobal>

/// An amount of money as a 64-bit number of ten-thousandths: sums are exact.
/// What lies beyond its range stays at the end of the range.
class Currency {
public:
    Currency() = default;
    /// To the nearest ten-thousandth. What is no number counts as 0.
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
