#pragma once

#include <QStyledItemDelegate>

/// Draws the cells of a list: each text on one line, a little narrower if it is a little too long,
/// a check box in the middle of its cell. The row is what is selected: no cell of it is marked on
/// its own.
class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// A text that is cut tells all of itself as a tip.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    static void PaintBox(QPainter &painter, QStyleOptionViewItem box, bool checked);
    static void PaintText(QPainter &painter, const QStyleOptionViewItem &cell);
};
