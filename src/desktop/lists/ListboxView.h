#pragma once

#include <QTableView>

#include <vector>

class Listbox;

/// Shows a Listbox and passes the user's input to it.
class ListboxView : public QTableView {
    Q_OBJECT

public:
    ListboxView(Listbox &list, QWidget *parent);

    /// Sets the widths of the first columns, in points of the design. Columns of width 0 and those
    /// without a width share the remaining space.
    void SetColumnWidths(const std::vector<int> &widths);

Q_SIGNALS:
    /// Emitted for the keys Insert and Delete without a modifier.
    void AddRequested();
    void RemoveRequested();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /// F2 opens the selected row, Space toggles its check box, Shift+F10 opens its menu. Keys with
    /// other modifiers are ignored.
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    /// Home and End go to the first and the last row.
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
    /// Returns the position of a menu opened by a key: below the selected row.
    QPoint MenuPosition() const;
    void OpenEditor();
    void CloseEditor();
    void ShowSelection();
    /// Passes a press of the left button to the list; returns true if the list has handled it.
    bool HandlePress(QPoint position);
    void PaintRow(QPainter &painter, int row, int top);

    Listbox &list_;
    std::vector<int> widths_;
    QPersistentModelIndex edited_;
    bool isShowing_ = false;
    bool isPressHandled_ = false;
};
