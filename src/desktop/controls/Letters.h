#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QWidget;

/// A text as a tip shows it, whatever looks like markup in it.
QString TipOf(const QString &text);

/// The size of the widget's font in pixels.
double LetterSize(const QWidget &widget);

/// How much larger than designed things are on the widget: in proportion to its font above 11
/// points at 96 dots to the inch, up to there 1.
double Growth(const QWidget &widget);

/// A place of the design, grown; its edges stay where their neighbours' are.
QRect Grown(const QRect &place, double growth);
int Grown(int points, double growth);

/// A text and the room for it, which has several lines if the flags let it wrap.
struct TextPlace {
    QString text;
    QRect room;
    int flags = 0;
};

/// The font, if the text fits; else made narrower, down to 85 %.
QFont NarrowedFont(QFont font, const TextPlace &place);
/// The same, and when that is not enough smaller, but never so small that nobody can read it.
QFont FittedFont(const QFont &font, const TextPlace &place);

/// Gives a widget this font, what it leaves open its parent's, fitted to what the widget always
/// says: the text of a label or button, the given rows of a pop-up menu, the cue of a field.
void FitText(QWidget &widget, const QFont &own);
