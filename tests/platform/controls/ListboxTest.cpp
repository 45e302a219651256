#include "platform/controls/Listbox.h"

#include "support/GoogleTest.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Listbox, LeavesAllAsItIsForAPlaceOutsideTheList) {
    Listbox list(u"List"_s, 2);
    list.AddRow(u"a"_s);
    list.SetCell(0, 1, u"b"_s);
    for (const auto &[row, column] : {std::pair(0, 2), {0, -1}, {1, 0}, {-1, 1}}) {
        list.SetCell(row, column, u"x"_s);
        list.SetCellCheck(row, column, true);
        EXPECT_FALSE(list.CellCheck(row, column));
        EXPECT_EQ(list.CellTag(row, column), Listbox::Tag());
        list.EditCell(row, column);
        EXPECT_EQ(list.EditedRow(), -1);
    }
    for (const int column : {-1, 2}) {
        list.SetColumn(column, {u"x"_s});
        list.SetHeading(column, u"x"_s);
        list.SetColumnAlignment(column, Listbox::Alignment::Right);
        list.SetColumnType(column, Listbox::ColumnType::CheckBox);
        EXPECT_EQ(list.TypeOfColumn(column), Listbox::ColumnType::Default);
    }
    EXPECT_EQ(list.Heading(-1) + list.Cell(-1, -1) + list.RowTag(0), u"\ta\tb"_s);
}

} // namespace
