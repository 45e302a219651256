#include "platform/values/UserLocale.h"

#include <iostream>

/// Prints an amount and a date as UserLocale formats them in the environment of the process.
/// Exits with 1 if the short date cannot be typed back.
int main() {
    const UserLocale locale(QLocale::system());
    const Date day(QDate(2026, 1, 20));
    const QString amount = locale.FormatAmount(-1234.5);
    std::cout << qPrintable(amount + u' ' + locale.ShortDate(day) + u' ' + locale.LongDate(day));
    return locale.ParseDate(locale.ShortDate(day)) == day ? 0 : 1;
}
