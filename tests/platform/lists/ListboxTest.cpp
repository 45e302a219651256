#include "platform/lists/Listbox.h"

#include "support/EventLog.h"
#include "support/GoogleTest.h"

#include <QAbstractItemModelTester>
#include <QPoint>

/// A list of two columns with the rows c, b and a, and check boxes in the second.
class ListboxTest : public testing::Test {
protected:
    ListboxTest() {
        list.SetColumnType(1, Listbox::ColumnType::CheckBox);
        for (const QString name : {"c", "b", "a"}) {
            list.AddRow(name);
            list.SetRowTag(list.LastIndex(), name.toUpper());
        }
    }
    QString TakeSignals() { return log.Take().remove("CompareRows").simplified(); }

    Listbox list{"List", 2};
    EventLog log{list};
    const QAbstractItemModelTester tester{&list};
};

TEST_F(ListboxTest, EmitsSignalsOnlyForChanges) {
    EXPECT_EQ(TakeSignals(), "rowsInserted rowsInserted rowsInserted");
    list.SetCell(0, 0, "d");
    list.SetCellCheck(0, 1, true);
    list.SetColumn(0, {u"d", u"b", u"a"});
    list.SetHeading(0, "Name");
    EXPECT_EQ(TakeSignals(), "dataChanged dataChanged dataChanged headerDataChanged");
    list.SetListIndex(1);
    list.SetListIndex(1);
    list.SetListIndex(3); // Out of range: selects no row.
    EXPECT_EQ(TakeSignals(), "SelectionChanged SelectionChanged");
    EXPECT_EQ(list.ListIndex(), -1);
    list.ScrollTo(2);
    list.ScrollTo(3);
    list.Sort(); // No column to sort by.
    EXPECT_EQ(TakeSignals(), "ScrollRequested");
    list.PressHeading(0);
    list.Sort();
    EXPECT_EQ(TakeSignals(), "headerDataChanged modelReset SelectionChanged");
    list.Refill([this] {
        list.DeleteAllRows();
        list.AddRow("a");
        list.SetCell(0, 0, "b");
        list.SetColumn(0, {u"c"});
        list.SetListIndex(0);
        list.EditCell(0, 0);
    });
    list.DeleteAllRows();
    list.SetColumn(0, {});
    EXPECT_EQ(TakeSignals(), "modelReset SelectionChanged modelReset SelectionChanged");
}

TEST_F(ListboxTest, EmitsSignalsForTheOpenCell) {
    log.Take();
    list.EditCell(0, 0);
    list.SetEditText("e");
    list.SetListIndex(0); // The row of the open cell.
    EXPECT_EQ(TakeSignals(), "SelectionChanged ScrollRequested EditOpened");
    list.SetListIndex(2);
    EXPECT_EQ(TakeSignals(), "dataChanged EditClosed CellAction SelectionChanged");
    list.EditCell(2, 0);
    list.EndEdit();
    list.EndEdit();
    EXPECT_EQ(TakeSignals(), "ScrollRequested EditOpened EditClosed");
    list.EditCell(2, 0);
    list.SetEditText("x");
    list.CancelEdit();
    EXPECT_EQ(TakeSignals(), "ScrollRequested EditOpened EditClosed");
    list.EditCell(1, 1); // A check box.
    list.ToggleCheck(1, 0);
    list.ToggleCheck(1, 1);
    EXPECT_EQ(TakeSignals(), "dataChanged CellAction");
    EXPECT_EQ(list.Cell(-1, 0), "e\nb\na");
}

TEST_F(ListboxTest, SortsWholeRowsAndKeepsTheSelectedRow) {
    Listbox::Rows rows(2);
    rows.tags = {u"C", u"B", u"A"};
    rows.cells[0] = {u"c", u"b", u"a"};
    rows.cellTags[1] = {"3"}; // The other rows have none.
    list.SetRows(rows);
    list.SetCellCheck(0, 1, true);
    list.SetListIndex(0);
    for (const QString names : {"a\nb\nc", "c\nb\na"}) {
        list.PressHeading(0);
        EXPECT_EQ(list.Cell(-1, 0), names);
        const int row = list.ListIndex();
        EXPECT_EQ(list.RowTag(row) + std::get<QString>(list.CellTag(row, 1)), "C3");
        EXPECT_TRUE(list.CellCheck(row, 1) && !list.CellCheck(1, 1));
    }
    list.DeleteAllRows();
    list.AddRow("new");
    EXPECT_FALSE(list.CellCheck(0, 1));
}

TEST_F(ListboxTest, IgnoresIndexesOutsideTheList) {
    const QString before = list.Cell(-1, -1);
    for (const QPoint cell : {QPoint(0, 2), {0, -1}, {3, 0}, {-1, 1}}) {
        list.SetCell(cell.x(), cell.y(), "x");
        list.SetCellCheck(cell.x(), cell.y(), true);
        list.EditCell(cell.x(), cell.y());
        EXPECT_FALSE(list.CellCheck(cell.x(), cell.y()) || list.EditedRow() >= 0);
    }
    for (const int column : {-1, 2}) {
        list.SetHeading(column, "x");
        list.SetColumnType(column, Listbox::ColumnType::CheckBox);
    }
    list.SetRowTag(3, "x");
    list.SetEditText("x");
    EXPECT_EQ(list.Heading(-1) + list.EditText() + list.Cell(-1, -1), "\t" + before);
    EXPECT_EQ(list.Cell(3, 0) + list.Cell(0, 2) + list.Heading(2) + list.RowTag(3), QString());
    EXPECT_EQ(list.headerData(2, Qt::Horizontal, Qt::DisplayRole), QVariant());
    EXPECT_EQ(list.index(0, 0).data(Qt::AccessibleTextRole), QVariant())
        << "the cell has no check box";
}
