#include "desktop/controls/RowDelegate.h"

#include "desktop/controls/Letters.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace {

/// More than any column shows; laying out more would only cost time.
constexpr int longestShownText = 1000;

} // namespace

QString RowDelegate::displayText(const QVariant &value, const QLocale & /*locale*/) const {
    QString text = value.toString().left(longestShownText);
    for (QChar &each : text) {
        if (each.category() == QChar::Other_Control) {
            each = u' ';
        }
    }
    return text;
}

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const {
    const QVariant checked = index.data(Qt::CheckStateRole);
    if (!checked.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem box = option;
    initStyleOption(&box, index);
    box.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    const QStyle &style = *option.widget->style();
    style.drawControl(QStyle::CE_ItemViewItem, &box, painter, option.widget);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &box, option.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &box, option.widget));
    box.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
    box.state |= checked == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, option.widget);
}

bool RowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                            const QStyleOptionViewItem &option, const QModelIndex &index) {
    const bool cut = index.isValid() && sizeHint(option, index).width() > option.rect.width();
    const QString tip = cut ? TipOf(index.data().toString().left(longestShownText)) : QString();
    QToolTip::showText(event->globalPos(), tip, view->viewport(), option.rect);
    return true;
}

void RowDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    constexpr int margin = 3;
    option->font =
        NarrowedFont(option->font, {option->text, option->rect.adjusted(margin, 0, -margin, 0)});
    option->fontMetrics = QFontMetrics(option->font);
}
