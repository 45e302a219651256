#pragma once

#include "platform/drawing/Graphics.h"
#include "platform/lists/CellModel.h"

#include <functional>

class MenuItem;

/// A list of rows, at most one of them selected and at most one cell open for typing. It is the
/// model that its view shows.
///
/// What has been typed belongs to its own row: before the rows change or another row is selected,
/// the open cell is closed and written. A handler of CellAction must not change the rows.
class Listbox : public CellModel {
    Q_OBJECT

public:
    Listbox(const QString &name, int columnCount);

    /// Lets the view wait while rows are deleted and added, and then shows them as a whole.
    void Refill(const std::function<void()> &fill);

    /// Puts these in the place of all rows, and leaves no selection.
    void SetRows(Rows rows);
    void DeleteAllRows() { SetRows(Rows(ColumnCount())); }

    int ListIndex() const { return listIndex_; }
    void SetListIndex(int row);
    /// Whether the user can't clear the selection; the program always can.
    bool RequiresSelection() const { return requiresSelection_; }
    void SetRequiresSelection(bool required) { requiresSelection_ = required; }

    /// Brings the row into view.
    void ScrollTo(int row);

    /// The column that Sort sorts by; -1 at the start, and nothing is sorted.
    int SortedColumn() const { return sortedColumn_; }
    bool SortsDescending() const { return descending_; }
    /// Ascending; takes effect with the next Sort.
    void SetSortedColumn(int column) { SetOrder(column, false); }
    /// Sorts by the sorted column, asking CompareRows, else by the texts in the order of a German
    /// dictionary, without regard to case.
    /// Rows that compare as equal keep their order; the selection stays with its row.
    void Sort();
    /// Whether a click on a heading sorts, as it does from the start.
    bool SortsByHeading() const { return sortsByHeading_; }
    void SetSortsByHeading(bool sorts) { sortsByHeading_ = sorts; }
    /// A click on a heading: sorts by the column ascending, or the other way round if the list is
    /// sorted by it already.
    void PressHeading(int column);

    /// Ends the edit, selects the row, brings it into view and opens the cell. A cell outside the
    /// list, a check box and a list that is being refilled open nothing.
    void EditCell(int row, int column);
    /// The open cell, -1 when none is.
    int EditedRow() const { return edit_.row; }
    int EditedColumn() const { return edit_.column; }
    /// What stands in the open cell. The cell keeps its own text until the end.
    QString EditText() const { return edit_.text; }
    void SetEditText(const QString &text);
    /// Closes the cell and fires EditClosed. If the text is another than in the beginning, the cell
    /// takes it, and CellAction follows.
    void EndEdit();
    /// Closes the cell, which keeps its text.
    void CancelEdit();
    /// Whether there is such a cell, and it shows a check box.
    bool IsCheckBox(int row, int column) const;
    /// A click on a check box: ends the edit, then flips the box and fires CellAction. Does nothing
    /// where there is none.
    void ToggleCheck(int row, int column);

Q_SIGNALS:
    /// The button went down, over this cell, before anything else. Taken means that neither
    /// CellClick nor a change of the selection follows, but MouseUp.
    void MouseDown(int row, int column, bool &handled);
    /// The button went up after a taken MouseDown, over this cell.
    void MouseUp(int row, int column);
    /// A click in a cell, before the selection moves on. Handled means that the list does no more.
    void CellClick(int row, int column, bool &handled);
    void DoubleClick();
    /// A key went to the list while a row is selected, as the arrows do.
    void KeyDown();
    void LostFocus();
    /// The user has changed the cell: its edit ended with another text, or its box was flipped.
    void CellAction(int row, int column);
    /// A key in the open cell that is no text, such as the Tab u'\t'.
    void CellKeyDown(int row, int column, QChar key);
    /// Asks for a hint about what is being typed in the open cell; empty when all is well.
    void HintRequested(int column, const QString &text, QString &hint);
    /// Asks for the background of a cell, also of the empty rows below the last one.
    void CellBackgroundPaint(Graphics &graphics, int row, int column);
    /// Asks how two rows compare: the handler sets the result to -1, 0 or 1 and handled to true.
    void CompareRows(int first, int second, int column, int &result, bool &handled);

    /// Asks for a context menu: the handler appends its entries to the base.
    void ConstructContextualMenu(MenuItem &base);
    void ContextualMenuAction(const MenuItem &chosen);

    /// For the view: the selected row is another. Follows every Refill too.
    void SelectionMoved();
    /// For the view: bring the row into view.
    void ScrollRequested(int row);
    /// For the view: a cell has opened and wants the focus; the cell has closed.
    void EditOpened();
    void EditClosed();

private:
    struct Edit {
        int row = -1;
        int column = -1;
        QString before;
        QString text;
    };

    bool CanEdit(int row, int column) const;
    void SetOrder(int column, bool descending);
    bool Less(int first, int second);
    /// Ends the edit, and closes what a handler of CellAction may have opened.
    void CloseOpenCell();

    Edit edit_;
    int listIndex_ = -1;
    int sortedColumn_ = -1;
    bool descending_ = false;
    bool sortsByHeading_ = true;
    bool requiresSelection_ = false;
};
