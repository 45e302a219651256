#pragma once

#include <QTableView>

#include <vector>

class Listbox;

/// Shows a Listbox and hands it what the user does.
class ListboxView : public QTableView {
    Q_OBJECT

public:
    ListboxView(Listbox &list, QWidget *parent);

    /// The widths of the first columns, in points of the design. Columns of width 0, and those
    /// without one, share what is left.
    void SetColumnWidths(const std::vector<int> &widths);

Q_SIGNALS:
    /// The key Insert, or Delete, without a modifier.
    void AddRequested();
    void RemoveRequested();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /// F2 opens the selected row, Space flips its check box, Shift+F10 opens its menu. A key with
    /// another modifier is no command.
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    /// Home and End go to the first and the last row: rows are chosen whole.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void selectionChanged(const QItemSelection &now, const QItemSelection &before) override;

private:
    void ApplyScale();
    bool HandleKey(const QKeyEvent &event);
    void ToggleChecks(int row);
    void OpenRow(int row);
    void OpenMenu(QPoint position);
    QPoint MenuPosition() const;
    void OpenEditor();
    void CloseEditor();
    void ShowSelection();
    /// Hands a press of the left button to the list; true if the list does no more with it.
    bool HandlePress(QPoint place);
    void PaintRow(QPainter &painter, int row, int top);

    Listbox &list_;
    std::vector<int> widths_;
    QPersistentModelIndex edited_;
    bool showing_ = false;
    bool isPressHandled_ = false;
};
