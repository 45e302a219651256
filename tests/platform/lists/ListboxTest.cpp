#include "platform/lists/Listbox.h"

#include "support/EventLog.h"
#include "support/GoogleTest.h"

#include <QAbstractItemModelTester>

/// A list of two columns with the rows b, c and a, and check boxes in the second.
class ListboxTest : public testing::Test {
protected:
    ListboxTest() {
        list.SetColumnType(1, Listbox::ColumnType::CheckBox);
        Listbox::Rows rows(2);
        rows.tags = {u"B", u"C", u"A"};
        rows.cells[0] = {u"b", u"c", u"a"};
        rows.cellTags[1] = {"2"}; // The other rows have none.
        list.SetRows(rows);
        list.SetCellCheck(0, 1, true);
        log.Take();
    }

    Listbox list{"", 2};
    EventLog log{list};
    const QAbstractItemModelTester tester{&list,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ListboxTest, EmitsSignalsOnlyForChanges) {
    list.AddRow("d");
    list.SetCell(0, 0, "e");
    list.SetColumn(0, {u"d", u"b"});
    list.SetHeading(0, "Name");
    EXPECT_EQ(log.Take(), "rowsInserted dataChanged dataChanged headerDataChanged");
    list.SetListIndex(1);
    list.SetListIndex(1);
    list.SetListIndex(4); // Out of range: selects no row.
    list.ScrollTo(3);
    list.Sort(); // No column to sort by.
    EXPECT_EQ(log.Take(), "SelectionChanged SelectionChanged ScrollRequested");
}

TEST_F(ListboxTest, ResetsItsViewOncePerRefill) {
    list.SetListIndex(2);
    list.Refill([this] {
        EXPECT_EQ(list.ListIndex(), 2);
        list.DeleteAllRows();
        EXPECT_EQ(list.ListIndex(), -1);
        list.AddRow("a");
        list.SetCell(0, 0, "b");
        list.SetColumn(0, {u"c"});
        list.SetListIndex(0);
        list.EditCell(0, 0);
    });
    EXPECT_EQ(log.Take(), "SelectionChanged modelReset SelectionChanged");
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_FALSE(list.CellCheck(0, 1)) << "a new row";
}

TEST_F(ListboxTest, SortsWholeRowsAndKeepsTheSelectedRow) {
    list.PressHeading(0);
    EXPECT_EQ(list.Cell(-1, -1), "a\t\nb\t\nc\t");
    EXPECT_EQ(list.ListIndex(), -1);
    list.SetListIndex(0);
    list.PressHeading(0);
    EXPECT_EQ(list.Cell(-1, 0), "c\nb\na");
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(list.RowTag(1), "B");
    EXPECT_EQ(list.CellTag(1, 1), Listbox::Tag("2"));
    EXPECT_TRUE(list.CellCheck(1, 1));
    EXPECT_FALSE(list.CellCheck(0, 1));
}

TEST_F(ListboxTest, WritesTheTypedTextBeforeAnotherRowIsSelected) {
    list.EditCell(0, 0);
    list.SetEditText("e");
    list.SetListIndex(0); // The row of the open cell.
    EXPECT_EQ(log.Take(), "SelectionChanged ScrollRequested EditOpened");
    list.SetListIndex(2);
    EXPECT_EQ(log.Take(), "dataChanged EditClosed CellAction SelectionChanged");
    list.EditCell(2, 0);
    list.SetEditText("x");
    list.CancelEdit();
    EXPECT_EQ(log.Take(), "ScrollRequested EditOpened EditClosed");
    EXPECT_EQ(list.Cell(-1, 0), "e\nc\na");
}

TEST_F(ListboxTest, TogglesOnlyCheckBoxes) {
    list.EditCell(0, 1);
    list.ToggleCheck(0, 0);
    list.ToggleCheck(0, 1);
    EXPECT_EQ(log.Take(), "dataChanged CellAction");
    EXPECT_FALSE(list.CellCheck(0, 1));
}

TEST_F(ListboxTest, IgnoresIndexesOutsideTheList) {
    for (const auto &[row, column] : {std::pair(0, 2), {0, -1}, {3, 0}, {-1, 1}}) {
        list.SetCell(row, column, "x");
        list.EditCell(row, column);
        EXPECT_FALSE(list.CellCheck(row, column));
    }
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(list.Cell(-1, -1), "b\t\nc\t\na\t");
    EXPECT_EQ(list.Cell(-1, 2), "");
    EXPECT_EQ(list.Cell(3, -1), "");
}
