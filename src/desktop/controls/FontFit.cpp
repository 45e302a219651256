#include "desktop/controls/FontFit.h"

#include "desktop/controls/LabelView.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int smallestSize = 9;

/// Whether a line in the middle of this height shows all of its highest and lowest letters.
bool LineFits(const QFontMetrics &font, int height) {
    const int baseline = (height - font.height()) / 2 + font.ascent();
    const QRect ink = font.tightBoundingRect(u"ÄÖÜÉgjpqy"_s).translated(0, baseline);
    // The ink is told with a rim that hardly shows.
    return ink.top() >= -1 && ink.bottom() <= height;
}

bool LabelFits(const QLabel &label) {
    const QRect place = label.contentsRect();
    const int wrap = label.wordWrap() ? Qt::TextWordWrap : 0;
    const QRect text = label.fontMetrics().boundingRect(place, wrap, label.text());
    const bool oneLine = wrap == 0 && !label.text().contains(u'\n');
    return text.width() <= place.width() && (oneLine ? LineFits(label.fontMetrics(), place.height())
                                                     : text.height() <= place.height());
}

bool ButtonFits(const QPushButton &button) {
    QStyleOptionButton option;
    option.initFrom(&button);
    const QRect place =
        button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    const QFontMetrics font = button.fontMetrics();
    return font.size(Qt::TextShowMnemonic, button.text()).width() <= place.width() &&
           LineFits(font, place.height());
}

bool ComboFits(const QComboBox &combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    const QRect place = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    const QFontMetrics font = combo.fontMetrics();
    int width = 0;
    // The rows of an editable one, and of one that ignores its contents, are the user's words.
    const bool given = combo.sizeAdjustPolicy() != QComboBox::AdjustToMinimumContentsLengthWithIcon;
    for (int row = 0; given && !combo.isEditable() && row < combo.count(); ++row) {
        width = std::max(width, font.horizontalAdvance(combo.itemText(row)));
    }
    // The style keeps a point free on each side.
    return width + 2 <= place.width() && LineFits(font, place.height());
}

bool FieldFits(const QLineEdit &field) {
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth =
        field.hasFrame() ? field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field)
                         : 0;
    const QRect place = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    const QFontMetrics font = field.fontMetrics();
    return font.horizontalAdvance(field.placeholderText()) <= place.width() &&
           LineFits(font, place.height());
}

bool Fits(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        const bool written = qobject_cast<const LabelView *>(label) != nullptr;
        return written || label->isHidden() || LabelFits(*label);
    }
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        return ButtonFits(*button);
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        return ComboFits(*combo);
    }
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget)) {
        return FieldFits(*field);
    }
    const auto *list = qobject_cast<const QTableView *>(&widget);
    return list == nullptr ||
           LineFits(list->fontMetrics(), list->verticalHeader()->defaultSectionSize());
}

} // namespace

void ShrinkFont(QWidget &widget, QFont font, const std::function<bool()> &fits) {
    widget.setFont(font);
    for (int size = widget.fontInfo().pixelSize(); size >= smallestSize && !fits(); --size) {
        font.setPixelSize(size);
        widget.setFont(font);
    }
}

FontFit::FontFit(QWidget &surface) : QObject(&surface), surface_(surface) {
    surface.installEventFilter(this);
    // Windows are told when the desktop has another font.
    surface.window()->installEventFilter(this);
}

bool FontFit::eventFilter(QObject *watched, QEvent *event) {
    const bool comesUp = event->type() == QEvent::Show && watched == &surface_;
    if (comesUp || event->type() == QEvent::ApplicationFontChange) {
        Fit();
    }
    return QObject::eventFilter(watched, event);
}

void FontFit::Fit() {
    QFont font = QApplication::font();
    // All of it, for what the window hands down may still be the font before.
    font.setResolveMask(QFont::AllPropertiesResolved);
    surface_.setFont(font);
    QList<QWidget *> widgets = surface_.findChildren<QWidget *>();
    widgets.removeIf([size = surface_.fontInfo().pixelSize()](const QWidget *widget) {
        return widget->fontInfo().pixelSize() != size;
    });
    ShrinkFont(surface_, font, [&widgets] {
        return std::all_of(widgets.begin(), widgets.end(),
                           [](const QWidget *widget) { return Fits(*widget); });
    });
}
