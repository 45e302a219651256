#include "desktop/lists/RowDelegate.h"

#include "desktop/look/TextFitting.h"
#include "desktop/look/ToolTipText.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

/// More than any column can show.
constexpr int maxShownLength = 1000;

/// Returns the rectangle of the text in a cell.
QRect TextRect(const QRect &cell) {
    constexpr int margin = 3;
    return cell.adjusted(margin, 0, -margin, 0);
}

} // namespace

QString RowDelegate::displayText(const QVariant &value, const QLocale & /*locale*/) const {
    QString text = value.toString().left(maxShownLength);
    for (QChar &each : text) {
        if (each.category() == QChar::Other_Control) {
            each = u' ';
        }
    }
    return text;
}

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle &style = *option.widget->style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, option.widget);
    const QVariant checked = index.data(Qt::CheckStateRole);
    if (checked.isValid()) {
        PaintBox(*painter, cell, checked == Qt::Checked);
    } else {
        PaintText(*painter, cell);
    }
}

void RowDelegate::PaintBox(QPainter &painter, QStyleOptionViewItem box, bool checked) {
    const QStyle &style = *box.widget->style();
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &box, box.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &box, box.widget));
    box.rect = QStyle::alignedRect(box.direction, Qt::AlignCenter, size, box.rect);
    box.state |= checked ? QStyle::State_On : QStyle::State_Off;
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter, box.widget);
}

void RowDelegate::PaintText(QPainter &painter, const QStyleOptionViewItem &cell) {
    const bool isActive = cell.state.testFlag(QStyle::State_Active);
    const QPalette::ColorGroup group = !cell.state.testFlag(QStyle::State_Enabled)
                                           ? QPalette::Disabled
                                       : isActive ? QPalette::Active
                                                  : QPalette::Inactive;
    painter.setFont(cell.font);
    painter.setPen(cell.palette.color(group, cell.state.testFlag(QStyle::State_Selected)
                                                 ? QPalette::HighlightedText
                                                 : QPalette::Text));
    painter.drawText(TextRect(cell.rect), int(cell.displayAlignment) | Qt::TextSingleLine,
                     cell.text);
}

bool RowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                            const QStyleOptionViewItem &option, const QModelIndex &index) {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString text = displayText(index.data(), option.locale);
    QToolTip::showText(event->globalPos(), cell.text == text ? QString() : ToolTipText(text),
                       view->viewport(), option.rect);
    return true;
}

void RowDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    const QFont condensed = CondensedFont(option->font, {option->text, TextRect(option->rect)});
    if (condensed != option->font) {
        option->font = condensed;
        option->fontMetrics = QFontMetrics(condensed);
        option->text = option->fontMetrics.elidedText(option->text, option->textElideMode,
                                                      TextRect(option->rect).width());
    }
}
