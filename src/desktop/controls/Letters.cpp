#include "desktop/controls/Letters.h"

#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// 11 points at 96 dots to the inch.
constexpr double largestAsDesigned = 11 * 96 / 72.0;
constexpr int narrowest = 85;
constexpr int smallest = 9;

TextPlace PlaceOf(const QLabel &label) {
    return {label.text(), label.contentsRect(), label.wordWrap() ? Qt::TextWordWrap : 0};
}

TextPlace PlaceOf(const QPushButton &button) {
    QStyleOptionButton option;
    option.initFrom(&button);
    return {button.text(),
            button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button)};
}

TextPlace PlaceOf(const QComboBox &combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    QString longest;
    // The rows of one that ignores its contents are the user's words.
    const bool given = combo.sizeAdjustPolicy() != QComboBox::AdjustToMinimumContentsLengthWithIcon;
    for (int row = 0; given && !combo.isEditable() && row < combo.count(); ++row) {
        const QFontMetrics font = combo.fontMetrics();
        if (font.horizontalAdvance(combo.itemText(row)) > font.horizontalAdvance(longest)) {
            longest = combo.itemText(row);
        }
    }
    const QRect room = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField, &combo);
    // The style keeps a point free on each side.
    return {longest, room.adjusted(1, 0, -1, 0)};
}

TextPlace PlaceOf(const QLineEdit &field) {
    QStyleOptionFrame option;
    option.initFrom(&field);
    return {field.placeholderText(),
            field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field)};
}

TextPlace PlaceOf(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return PlaceOf(*label);
    }
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        return PlaceOf(*button);
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        return PlaceOf(*combo);
    }
    const auto *field = qobject_cast<const QLineEdit *>(&widget);
    return field == nullptr ? TextPlace{} : PlaceOf(*field);
}

bool Fits(const QFont &font, const TextPlace &place) {
    const QSize needed =
        QFontMetrics(font).boundingRect(place.room, place.flags, place.text).size();
    // The letters of one line have room wherever it stands, if not the rim above and below them.
    return needed.width() <= place.room.width() &&
           (place.flags == 0 || needed.height() <= place.room.height());
}

/// Shows the whole of a first letter that reaches out to the left, as the hook of a J does.
void ShowHook(QLabel &label) {
    const QString text = label.text();
    const int hook =
        text.isEmpty() ? 0 : std::max(0, -label.fontMetrics().leftBearing(text.front()));
    if (label.indent() != hook) {
        label.setIndent(hook);
    }
}

} // namespace

QString TipOf(const QString &text) {
    return text.isEmpty() ? QString() : u"<p>%1</p>"_s.arg(text.toHtmlEscaped());
}

double LetterSize(const QWidget &widget) {
    constexpr double inch = 72;
    const QFont &font = widget.font();
    // As it was wished for: what the screen shows of it is rounded.
    return font.pixelSize() > 0 ? font.pixelSize()
                                : font.pointSizeF() * widget.logicalDpiY() / inch;
}

double Growth(const QWidget &widget) {
    return std::max(1.0, LetterSize(widget) / largestAsDesigned);
}

int Grown(int points, double growth) {
    return qRound(points * growth);
}

QRect Grown(const QRect &place, double growth) {
    const auto grown = [growth](const QPoint &point) {
        return (QPointF(point) * growth).toPoint();
    };
    return {grown(place.topLeft()), grown(place.bottomRight() + QPoint(1, 1)) - QPoint(1, 1)};
}

QFont NarrowedFont(QFont font, const TextPlace &place) {
    for (int width = 95; width >= narrowest && !Fits(font, place); width -= 5) {
        font.setStretch(width);
    }
    return font;
}

QFont FittedFont(const QFont &font, const TextPlace &place) {
    QFont fitted = NarrowedFont(font, place);
    for (int size = QFontInfo(font).pixelSize(); size >= smallest && !Fits(fitted, place); --size) {
        fitted.setPixelSize(size);
    }
    return fitted;
}

void FitText(QWidget &widget, const QFont &own) {
    const QFont font = own.resolve(widget.parentWidget()->font());
    const QFont fitted = FittedFont(font, PlaceOf(widget));
    // What fits goes on following the parent.
    widget.setFont(fitted == font ? own : fitted);
    if (auto *label = qobject_cast<QLabel *>(&widget)) {
        ShowHook(*label);
    }
}
