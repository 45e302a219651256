#pragma once

#include <QTableView>

#include <initializer_list>

class Listbox;

/// Shows a Listbox and hands it what the user does.
class ListboxView : public QTableView {
    Q_OBJECT

public:
    ListboxView(Listbox &list, QWidget *parent);

    /// The widths of the first columns, in points; the last column takes what is left.
    void SetColumnWidths(std::initializer_list<int> widths);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    /// Home and End go to the first and the last row: rows are chosen whole.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void selectionChanged(const QItemSelection &now, const QItemSelection &before) override;

private:
    void ShowSelection();
    void PaintRow(QPainter &painter, int row, int top);

    Listbox &list_;
    bool showing_ = false;
};
