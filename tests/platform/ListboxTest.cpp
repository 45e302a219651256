#include "platform/Listbox.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ListboxTest : public testing::Test {
protected:
    /// One row for each name; its second cell and its tag tell its place in the beginning.
    void Fill(const QStringList &names) {
        const Listbox::Refill refill(list);
        list.DeleteAllRows();
        for (const QString &name : names) {
            list.AddRow(name);
            list.SetCell(list.LastIndex(), 1, QString::number(list.LastIndex()));
            list.SetRowTag(list.LastIndex(), QString::number(list.LastIndex()));
        }
    }

    Listbox list{u"CashList"_s, 2};
    QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy resets{&list, &Listbox::modelReset};
};

TEST_F(ListboxTest, JoinsCellsAndReadsAsEmptyOutside) {
    EXPECT_EQ(list.Cell(-1, -1) + list.Cell(list.LastIndex(), 1), u""_s);
    list.AddRow(u"a"_s);
    Fill({u"b"_s, u"c"_s});
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(list.Cell(-1, -1), u"b\t0\nc\t1"_s);
    EXPECT_EQ(list.Cell(-1, 1), u"0\n1"_s);
    EXPECT_EQ(list.Cell(1, -1), u"c\t1"_s);
    EXPECT_EQ(list.Cell(2, 0) + list.Cell(0, 2) + list.RowTag(2), u""_s);
    EXPECT_EQ(list.CellTag(0, 1), Listbox::Tag());
}

TEST_F(ListboxTest, SortsStablyAndKeepsTheSelectionWithItsRow) {
    QStringList names;
    QStringList upwards; // The places in the beginning, in the order of the names.
    for (int place = 0; place < 40; ++place) {
        names.append(place % 2 == 0 ? u"b"_s : place % 4 == 1 ? u"A"_s : u"a"_s);
        upwards.insert(place % 2 == 0 ? upwards.size() : place / 2, QString::number(place));
    }
    Fill(names);
    list.SetListIndex(3);
    list.Sort();
    list.Sort(); // Nothing to do, and nothing to show anew.
    EXPECT_EQ(resets.count(), 2);
    EXPECT_EQ(list.Cell(-1, 1), upwards.join(u'\n'));
    EXPECT_EQ(list.ListIndex(), 1);
    QObject::connect(&list, &Listbox::CompareRows, &list,
                     [this](int first, int second, int column, int &result, bool &handled) {
                         result = list.Cell(second, column).compare(list.Cell(first, column));
                         handled = true;
                     });
    list.Sort(); // Backwards now, and by upper and lower case.
    EXPECT_EQ(list.Cell(0, 0) + list.Cell(20, 0) + list.Cell(39, 0), u"baA"_s);
    EXPECT_EQ(list.RowTag(list.ListIndex()), u"3"_s);
    EXPECT_EQ(list.FindRow(u"1"_s), 30);
}

} // namespace
