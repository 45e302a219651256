#pragma once

#include <QString>

#include <array>

class SelectionControl;
class UserLocale;

/// Functions that all modules share: conversions of amounts and dates, and searches in lists
/// without regard to case. None of them reports errors.
namespace TLXModule {

/// Makes the first comma a dot and changes nothing else.
QString AmountText2SQL(const QString &text);
/// The number at the start of a typed or shown amount, comma or dot as decimal mark.
double AmountText2Value(QStringView text);
/// What to say about a typed amount that is read otherwise than it was meant, as with a dot for
/// thousands; empty when all is well. Nothing refuses such a text.
QString AmountHint(const QString &text, const UserLocale &locale);
/// Right-aligned in eight characters; a longer text loses its left end.
QString PadAmount8(const QString &text);

/// Of a SQL date: the four digits of the year, and the month from 1.
QString SQLDateYear(const QString &sqlDate);
int SQLDateMonth(const QString &sqlDate);
/// DD.MM.YYYY of a SQL date; what follows the date stays.
QString DateSQL2German(const QString &text);

/// Returns the index of the first row with the tag, -1 if there is none. Selects nothing.
int GetRowTag(const SelectionControl &list, const QString &tag);
/// Selects the first row with the text and returns its index; -1 and no change if there is none.
int IndexOf(SelectionControl &list, const QString &text);

struct MonthTag {
    QStringView text;
    QStringView tag;
};
/// The rows of the month selector: index 0 is the whole year, the others equal the month.
extern const std::array<MonthTag, 13> MonthTagTable;

} // namespace TLXModule
