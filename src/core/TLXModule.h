#pragma once

#include <QString>

#include <array>

class SelectionControl;

/// Functions that all rooms share: conversions of amounts and dates, and look-ups in lists. None of
/// them reports anything; texts are compared without regard to case.
namespace TLXModule {

/// Makes the first comma a dot and changes nothing else.
QString AmountText2SQL(const QString &text);
/// The number at the start of a typed or shown amount, comma or dot as decimal mark.
double AmountText2Value(const QString &text);
/// Right-aligned in eight characters; a longer text loses its left end.
QString PadAmount8(const QString &text);

/// Of a SQL date: the four digits of the year, and the month from 1.
QString SQLDateYear(const QString &sqlDate);
int SQLDateMonth(const QString &sqlDate);
/// DD.MM.YYYY of a SQL date; what stands behind the date stays.
QString DateSQL2German(const QString &text);

struct MonthTag {
    QStringView text;
    QStringView tag;
};
/// The rows of the month selector: index 0 is the whole year, the others equal the month.
extern const std::array<MonthTag, 13> MonthTagTable;

/// The index of the first row with the tag, -1 if there is none. Selects nothing.
int GetRowTag(const SelectionControl &list, const QString &tag);
/// The index of the first row with the text, -1 if there is none. Selects nothing.
int FindText(const SelectionControl &list, const QString &text);
/// The index of the first row with the text, which it selects; -1 and no change if there is none.
int IndexOf(SelectionControl &list, const QString &text);

} // namespace TLXModule
