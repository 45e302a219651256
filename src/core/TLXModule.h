#pragma once

#include <QString>

#include <array>

class SelectionControl;
class UserLocale;

/// Functions shared by all modules: conversions of amounts and dates, and case-insensitive searches
/// in lists. None of them reports errors.
namespace TLXModule {

/// Replaces the first comma by a dot and changes nothing else.
QString AmountText2SQL(const QString &text);
/// Returns the number at the start of a typed or displayed amount, with a comma or a dot as decimal
/// mark.
double AmountText2Value(QStringView text);
/// Returns a hint if a typed amount is probably read differently from what the user meant, as with
/// a dot as thousands separator; otherwise an empty text. Such an amount is accepted nevertheless.
QString AmountHint(const QString &text, const UserLocale &locale);
/// Right-aligns the text in eight characters; a longer text is truncated on the left.
QString PadAmount8(const QString &text);

/// Return the four digits of the year and the month, from 1, of a SQL date.
QString SQLDateYear(const QString &sqlDate);
int SQLDateMonth(const QString &sqlDate);
/// Converts a leading SQL date to DD.MM.YYYY; the rest of the text is unchanged.
QString DateSQL2German(const QString &text);

/// Returns the index of the first row with the tag, -1 if there is none. Does not change the
/// selection.
int GetRowTag(const SelectionControl &list, const QString &tag);
/// Selects the first row with the text and returns its index. Returns -1 and changes nothing if
/// there is none.
int IndexOf(SelectionControl &list, const QString &text);

struct MonthTag {
    QStringView text;
    QStringView tag;
};
/// The rows of the month selector: index 0 is the whole year, 1 to 12 are the months.
extern const std::array<MonthTag, 13> MonthTagTable;

} // namespace TLXModule
