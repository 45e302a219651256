#pragma once

#include <QString>

/// Text functions. Texts are compared without regard to case everywhere.

/// The number at the start of the text, with a dot or the given letter as decimal mark; 0 if there
/// is none.
double Val(QStringView text, QChar decimalMark = u'.');

/// The piece with the given number, from 1; empty beyond the last.
QString NthField(QStringView text, QChar separator, int number);

/// Puts another letter in the place of the first that is found; without one the text stays.
QString Replace(QString text, QChar search, QChar character);

/// Turns all line ends of a text, of whatever kind, into the given one.
QString ReplaceLineEndings(QString text, const QString &ending);

/// Makes a text one line: each run of line breaks, tabs and other control characters becomes a
/// blank.
QString OneLine(QString text);

/// Below, at or above 0, as the texts stand in a German dictionary, without regard to case.
int CompareTexts(const QString &a, const QString &b);

bool SameText(QStringView a, QStringView b);
