#include "desktop/look/TextFitting.h"

#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int narrowestPercent = 85;
constexpr int smallestPx = 9;

/// Returns the longest row of a pop-up menu, empty for one whose rows are texts of the user: it
/// ignores their width.
QString LongestRow(const QComboBox &combo) {
    QString longest;
    const bool isFixed =
        combo.sizeAdjustPolicy() != QComboBox::AdjustToMinimumContentsLengthWithIcon;
    for (int row = 0; isFixed && !combo.isEditable() && row < combo.count(); ++row) {
        const QFontMetrics metrics = combo.fontMetrics();
        if (metrics.horizontalAdvance(combo.itemText(row)) > metrics.horizontalAdvance(longest)) {
            longest = combo.itemText(row);
        }
    }
    return longest;
}

/// Returns the fixed text of a widget and the rectangle that its style draws the text in.
TextBox FixedText(const QWidget &widget) {
    const QStyle &style = *widget.style();
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return {label->text(), label->contentsRect(), label->wordWrap() ? Qt::TextWordWrap : 0};
    }
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(button);
        return {button->text(),
                style.subElementRect(QStyle::SE_PushButtonContents, &option, button)};
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        const QRect field =
            style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
        // The style keeps a margin of one point on each side.
        return {LongestRow(*combo), field.adjusted(1, 0, -1, 0)};
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        QStyleOptionFrame option;
        option.initFrom(edit);
        return {edit->placeholderText(),
                style.subElementRect(QStyle::SE_LineEditContents, &option, edit)};
    }
    return {};
}

bool Fits(const QFont &font, const TextBox &box) {
    const QSize size = QFontMetrics(font).boundingRect(box.rect, box.flags, box.text).size();
    // A single line may use the margins above and below it.
    return size.width() <= box.rect.width() &&
           (box.flags == 0 || size.height() <= box.rect.height());
}

/// Indents a label whose first character extends to the left of its origin, like a J.
void ShowLeftBearing(QLabel &label) {
    const QString text = label.text();
    const int indent =
        text.isEmpty() ? 0 : std::max(0, -label.fontMetrics().leftBearing(text.front()));
    if (label.indent() != indent) {
        label.setIndent(indent);
    }
}

} // namespace

QFont CondensedFont(QFont font, const TextBox &box) {
    for (int percent = 95; percent >= narrowestPercent && !Fits(font, box); percent -= 5) {
        font.setStretch(percent);
    }
    return font;
}

QFont FittedFont(const QFont &font, const TextBox &box) {
    QFont fitted = CondensedFont(font, box);
    for (int size = QFontInfo(font).pixelSize(); size >= smallestPx && !Fits(fitted, box); --size) {
        fitted.setPixelSize(size);
    }
    return fitted;
}

void FitText(QWidget &widget, const QFont &font) {
    const QFont resolved = font.resolve(widget.parentWidget()->font());
    const QFont fitted = FittedFont(resolved, FixedText(widget));
    // Unfitted, the widget inherits later changes of the parent's font.
    widget.setFont(fitted == resolved ? font : fitted);
    if (auto *label = qobject_cast<QLabel *>(&widget)) {
        ShowLeftBearing(*label);
    }
}
