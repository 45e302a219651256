#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QWidget;

/// A text and the rectangle that it is drawn in; with Qt::TextWordWrap it may have several lines.
struct TextBox {
    QString text;
    QRect rect;
    int flags = 0;
};

/// Returns the font, condensed down to 85 % if the text does not fit the box otherwise.
QFont CondensedFont(QFont font, const TextBox &box);
/// Returns the font condensed, and if that is not enough in a smaller size, down to 9 pixels.
QFont FittedFont(const QFont &font, const TextBox &box);

/// Sets the font of a widget, fitted to its fixed text: that of a label or button, the longest row
/// of a pop-up menu, the placeholder of a line edit. Attributes that it does not set are inherited.
void FitText(QWidget &widget, const QFont &font);
