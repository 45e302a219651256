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
        for (const auto &name : {u"c"_s, u"b"_s, u"a"_s}) {
            list.AddRow(name);
            list.SetRowTag(list.LastIndex(), name.toUpper());
        }
    }
    QString Told() { return log.Take().remove(u"CompareRows"_s).simplified(); }

    Listbox list{u"List"_s, 2};
    EventLog log{list};
    const QAbstractItemModelTester tester{&list};
};

TEST_F(ListboxTest, TellsItsViewEveryChangeAndOnlyAChange) {
    EXPECT_EQ(Told(), u"rowsInserted rowsInserted rowsInserted"_s);
    list.SetCell(0, 0, u"d"_s);
    list.SetCellCheck(0, 1, true);
    list.SetColumn(0, {u"d", u"b", u"a"});
    list.SetHeading(0, u"Name"_s);
    EXPECT_EQ(Told(), u"dataChanged dataChanged dataChanged headerDataChanged"_s);
    list.SetListIndex(1);
    list.SetListIndex(1);
    list.SetListIndex(3); // None.
    EXPECT_EQ(Told(), u"SelectionMoved SelectionMoved"_s);
    EXPECT_EQ(list.ListIndex(), -1);
    list.ScrollTo(2);
    list.ScrollTo(3);
    list.Sort(); // By no column.
    EXPECT_EQ(Told(), u"ScrollRequested"_s);
    list.PressHeading(0);
    list.Sort();
    EXPECT_EQ(Told(), u"headerDataChanged modelReset SelectionMoved"_s);
    list.Refill([this] {
        list.DeleteAllRows();
        list.AddRow(u"a"_s);
        list.SetCell(0, 0, u"b"_s);
        list.SetColumn(0, {u"c"});
        list.SetListIndex(0);
        list.EditCell(0, 0);
    });
    list.DeleteAllRows();
    list.SetColumn(0, {});
    EXPECT_EQ(Told(), u"modelReset SelectionMoved modelReset SelectionMoved"_s);
}

TEST_F(ListboxTest, TellsWhatBecomesOfAnOpenCell) {
    log.Take();
    list.EditCell(0, 0);
    list.SetEditText(u"e"_s);
    list.SetListIndex(0); // Its own row.
    EXPECT_EQ(Told(), u"SelectionMoved ScrollRequested EditOpened"_s);
    list.SetListIndex(2);
    EXPECT_EQ(Told(), u"dataChanged EditClosed CellAction SelectionMoved"_s);
    list.EditCell(2, 0);
    list.EndEdit();
    list.EndEdit();
    EXPECT_EQ(Told(), u"ScrollRequested EditOpened EditClosed"_s);
    list.EditCell(2, 0);
    list.SetEditText(u"x"_s);
    list.CancelEdit();
    EXPECT_EQ(Told(), u"ScrollRequested EditOpened EditClosed"_s);
    list.EditCell(1, 1); // A check box.
    list.ToggleCheck(1, 0);
    list.ToggleCheck(1, 1);
    EXPECT_EQ(Told(), u"dataChanged CellAction"_s);
    EXPECT_EQ(list.Cell(-1, 0), u"e\nb\na"_s);
}

TEST_F(ListboxTest, SortsWholeRowsAndKeepsTheSelectionWithItsOwn) {
    Listbox::Rows rows(2);
    rows.tags = {u"C", u"B", u"A"};
    rows.cells[0] = {u"c", u"b", u"a"};
    rows.cellTags[1] = {u"3"_s}; // Those that come after it have none.
    list.SetRows(rows);
    list.SetCellCheck(0, 1, true);
    list.SetListIndex(0);
    for (const auto &names : {u"a\nb\nc"_s, u"c\nb\na"_s}) {
        list.PressHeading(0);
        EXPECT_EQ(list.Cell(-1, 0), names);
        const int row = list.ListIndex();
        EXPECT_EQ(list.RowTag(row) + std::get<QString>(list.CellTag(row, 1)), u"C3"_s);
        EXPECT_TRUE(list.CellCheck(row, 1) && !list.CellCheck(1, 1));
    }
    list.DeleteAllRows();
    list.AddRow(u"new"_s);
    EXPECT_FALSE(list.CellCheck(0, 1));
}

TEST_F(ListboxTest, LeavesAllAsItIsForAPlaceOutsideTheList) {
    const QString before = list.Cell(-1, -1);
    for (const QPoint place : {QPoint(0, 2), {0, -1}, {3, 0}, {-1, 1}}) {
        list.SetCell(place.x(), place.y(), u"x"_s);
        list.SetCellCheck(place.x(), place.y(), true);
        list.EditCell(place.x(), place.y());
        EXPECT_FALSE(list.CellCheck(place.x(), place.y()) || list.EditedRow() >= 0);
    }
    for (const int column : {-1, 2}) {
        list.SetHeading(column, u"x"_s);
        list.SetColumnType(column, Listbox::ColumnType::CheckBox);
    }
    list.SetRowTag(3, u"x"_s);
    list.SetEditText(u"x"_s);
    EXPECT_EQ(list.Heading(-1) + list.EditText() + list.Cell(-1, -1), u"\t"_s + before);
    EXPECT_EQ(list.Cell(3, 0) + list.Cell(0, 2) + list.Heading(2) + list.RowTag(3), QString());
    EXPECT_EQ(list.headerData(2, Qt::Horizontal, Qt::DisplayRole), QVariant());
    EXPECT_EQ(list.index(0, 0).data(Qt::AccessibleTextRole), QVariant()) << "it is no check box";
}
