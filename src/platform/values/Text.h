#pragma once

#include <QString>

/// Returns the number at the start of the text, 0 if there is none. The decimal mark is a dot or
/// the given character.
double Val(QStringView text, QChar decimalMark = u'.');

/// Returns the field with the given number, from 1; empty beyond the last.
QString NthField(QStringView text, QChar separator, int number);

/// Replaces the first occurrence of a character, if any.
QString Replace(QString text, QChar search, QChar character);

/// Replaces all line endings (CR LF, CR, LF) by the given one.
QString ReplaceLineEndings(QString text, const QString &ending);

/// Turns a text into one line: replaces each run of line breaks, tabs and other control characters
/// by a space.
QString OneLine(QString text);

/// Returns a value below, equal to or above 0 by German collation order, ignoring case.
int CompareTexts(const QString &a, const QString &b);

/// Returns whether the texts are equal, ignoring case.
bool SameText(QStringView a, QStringView b);
