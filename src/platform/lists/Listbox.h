#pragma once

#include "platform/drawing/Graphics.h"
#include "platform/lists/CellModel.h"

#include <functional>

class MenuItem;

/// A list with at most one selected row and at most one cell open for editing. It is the model of
/// its view.
///
/// Before the rows change or another row is selected, the open cell is closed and its text is
/// written, so that typed text goes to the row it was typed in. A handler of CellAction must not
/// change the rows.
class Listbox : public CellModel {
    Q_OBJECT

public:
    Listbox(const QString &name, int columnCount);

    /// Calls fill, which may delete and add rows, within one model reset.
    void Refill(const std::function<void()> &fill);

    /// Replaces all rows and clears the selection.
    void SetRows(Rows rows);
    void DeleteAllRows() { SetRows(Rows(ColumnCount())); }

    int ListIndex() const { return listIndex_; }
    void SetListIndex(int row);
    /// Returns whether the user can't clear the selection. The program can always clear it.
    bool RequiresSelection() const { return requiresSelection_; }
    void SetRequiresSelection(bool required) { requiresSelection_ = required; }

    /// Scrolls the row into view.
    void ScrollTo(int row);

    /// Returns the column that Sort sorts by; -1, the default, means unsorted.
    int SortedColumn() const { return sortedColumn_; }
    bool SortsDescending() const { return descending_; }
    /// Sets the sorted column, in ascending order. Takes effect with the next Sort.
    void SetSortedColumn(int column) { SetOrder(column, false); }
    /// Sorts by the sorted column. Rows are compared by a handler of CompareRows, or else by their
    /// texts in German collation order, ignoring case. The sort is stable; the same row remains
    /// selected.
    void Sort();
    /// Returns whether a click on a heading sorts the list; true by default.
    bool SortsByHeading() const { return sortsByHeading_; }
    void SetSortsByHeading(bool sorts) { sortsByHeading_ = sorts; }
    /// Handles a click on a heading: sorts by the column in ascending order, or reverses the order
    /// if the list is already sorted by that column.
    void PressHeading(int column);

    /// Ends the current edit, selects the row, scrolls it into view and opens the cell. Opens
    /// nothing if the cell does not exist or is a check box, or during a refill.
    void EditCell(int row, int column);
    /// EditedRow and EditedColumn return the open cell, -1 if there is none.
    int EditedRow() const { return edit_.row; }
    int EditedColumn() const { return edit_.column; }
    /// Returns the text in the editor. The text of the cell is not changed before EndEdit.
    QString EditText() const { return edit_.text; }
    void SetEditText(const QString &text);
    /// Closes the cell and emits EditClosed. If the text was changed, it is written to the cell
    /// before that, and CellAction is emitted after it.
    void EndEdit();
    /// Closes the cell without changing its text.
    void CancelEdit();
    /// Returns whether the cell exists and is a check box.
    bool IsCheckBox(int row, int column) const;
    /// Handles a click on a check box: ends the current edit, toggles the check box and emits
    /// CellAction. In any other cell only the edit is ended.
    void ToggleCheck(int row, int column);

Q_SIGNALS:
    /// Emitted when the mouse button is pressed over the cell, before any other signal. If handled
    /// is set, MouseUp follows, but no CellClick and no change of the selection.
    void MouseDown(int row, int column, bool &handled);
    /// Emitted when the mouse button is released over the cell after a handled MouseDown.
    void MouseUp(int row, int column);
    /// Emitted on a click in a cell, before the selection changes. If handled is set, the list does
    /// nothing else.
    void CellClick(int row, int column, bool &handled);
    void DoubleClick();
    /// Emitted on a key press in the list, such as an arrow key, while a row is selected.
    void KeyDown();
    void LostFocus();
    /// Emitted when the user has changed the text of the cell or toggled its check box.
    void CellAction(int row, int column);
    /// Emitted on a key in the open cell that enters no text, such as Tab (u'\t').
    void CellKeyDown(int row, int column, QChar key);
    /// Requests a hint about the text typed in the open cell; empty if there is none.
    void HintRequested(int column, const QString &text, QString &hint);
    /// Emitted to paint the background of a cell, also in the empty rows below the last one.
    void CellBackgroundPaint(Graphics &graphics, int row, int column);
    /// Emitted to compare two rows: a handler sets result to -1, 0 or 1, and handled to true.
    void CompareRows(int first, int second, int column, int &result, bool &handled);

    /// Emitted to build a context menu: a handler appends the menu items to base.
    void ConstructContextualMenu(MenuItem &base);
    void ContextualMenuAction(const MenuItem &chosen);

    /// For the view: emitted when the selected row has changed, and after every Refill.
    void SelectionChanged();
    /// For the view: emitted to scroll the row into view.
    void ScrollRequested(int row);
    /// For the view: emitted when a cell was opened, which then needs the focus, and when it was
    /// closed.
    void EditOpened();
    void EditClosed();

private:
    struct Edit {
        int row = -1;
        int column = -1;
        QString originalText;
        QString text;
    };

    bool CanEdit(int row, int column) const;
    void SetOrder(int column, bool descending);
    bool Less(int first, int second);
    /// Ends the current edit, and cancels an edit that a handler of CellAction may have opened.
    void CloseOpenCell();

    Edit edit_;
    int listIndex_ = -1;
    int sortedColumn_ = -1;
    bool descending_ = false;
    bool sortsByHeading_ = true;
    bool requiresSelection_ = false;
};
