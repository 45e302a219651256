#include "platform/controls/Listbox.h"

#include "support/GoogleTest.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Listbox, LeavesAllAsItIsForAPlaceOutsideTheList) {
    Listbox list(u"List"_s, 2);
    list.AddRow(u"a"_s);
    for (const auto &[row, column] : {std::pair(0, 2), {0, -1}, {1, 0}, {-1, 1}}) {
        list.SetCell(row, column, u"x"_s);
        list.SetCellCheck(row, column, true);
        list.EditCell(row, column);
        EXPECT_FALSE(list.CellCheck(row, column) || list.EditedRow() >= 0);
    }
    for (const int column : {-1, 2}) {
        list.SetColumn(column, {u"x"_s});
        list.SetHeading(column, u"x"_s);
        list.SetColumnAlignment(column, Listbox::Alignment::Right);
        list.SetColumnType(column, Listbox::ColumnType::CheckBox);
    }
    EXPECT_EQ(list.Heading(-1) + list.Cell(-1, -1), u"\ta\t"_s);
}

} // namespace
