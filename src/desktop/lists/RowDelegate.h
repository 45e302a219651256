#pragma once

#include <QStyledItemDelegate>

/// Draws the cells of a list: each text on one line, condensed if it is a little too long, a check
/// box in the centre of its cell. Rows are selected as a whole: no cell shows the focus.
class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// Shows a text that is cut as a tool tip.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    static void PaintBox(QPainter &painter, QStyleOptionViewItem box, bool checked);
    /// Not by the style, which draws the text one pixel lower in some fonts.
    static void PaintText(QPainter &painter, const QStyleOptionViewItem &cell);
};
