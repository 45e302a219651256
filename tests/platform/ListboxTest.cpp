#include "platform/Listbox.h"

#include "support/GoogleTest.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class ListboxTest : public testing::Test {
protected:
    ListboxTest() {
        list.SetColumnType(2, Listbox::ColumnType::CheckBox);
        // Writes down what a cell holds when it has been changed, while no cell is open any more.
        QObject::connect(&list, &Listbox::CellAction, &list, [this](int row, int column) {
            actions += u"%1%2%3 "_s.arg(list.RowTag(row)).arg(column).arg(list.Cell(row, column));
            EXPECT_EQ(list.EditedRow() + list.EditedColumn(), -2);
        });
    }

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
    void Type(int row, int column, const QString &text) {
        list.EditCell(row, column);
        list.SetEditText(text);
    }

    Listbox list{u"CashList"_s, 3};
    QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QString actions;
};

TEST_F(ListboxTest, JoinsCellsAndReadsAsEmptyOutside) {
    EXPECT_EQ(list.Cell(-1, -1) + list.Cell(list.LastIndex(), 1), u""_s);
    list.AddRow(u"a"_s);
    Fill({u"b"_s, u"c"_s});
    EXPECT_EQ(list.Cell(-1, -1), u"b\t0\t\nc\t1\t"_s);
    EXPECT_EQ(list.Cell(-1, 1) + u'|' + list.Cell(1, -1), u"0\n1|c\t1\t"_s);
    EXPECT_EQ(list.Cell(2, 0) + list.Cell(0, 3) + list.RowTag(2), u""_s);
    EXPECT_EQ(list.CellTag(0, 1), Listbox::Tag());
    list.SetHeading(1, u"Konto"_s);
    EXPECT_EQ(list.headerData(1, Qt::Horizontal, Qt::DisplayRole), u"Konto"_s);
}

TEST_F(ListboxTest, SortsStablyBothWaysAndKeepsTheSelectionWithItsRow) {
    const QSignalSpy resets(&list, &Listbox::modelReset);
    QStringList names;
    QStringList upwards; // The places in the beginning, in the order of the names.
    for (int place = 0; place < 40; ++place) {
        names.append(place % 2 == 0 ? u"b"_s : place % 4 == 1 ? u"A"_s : u"a"_s);
        upwards.insert(place % 2 == 0 ? upwards.size() : place / 2, QString::number(place));
    }
    Fill(names);
    list.SetListIndex(3);
    list.PressHeading(0);
    list.Sort(); // Nothing to do, and nothing to show anew.
    EXPECT_EQ(resets.count(), 2);
    EXPECT_EQ(list.Cell(-1, 1), upwards.join(u'\n'));
    EXPECT_EQ(list.ListIndex(), 1);
    list.PressHeading(0);
    EXPECT_EQ(list.Cell(-1, 1), (upwards.mid(20) + upwards.first(20)).join(u'\n'));
    EXPECT_EQ(list.ListIndex(), 21);
    EXPECT_EQ(list.RowTag(list.ListIndex()), u"3"_s);
}

TEST_F(ListboxTest, WritesAnEditedCellOnlyIfItsTextIsAnother) {
    Fill({u"a"_s, u"b"_s});
    const QSignalSpy opened(&list, &Listbox::EditOpened);
    const QSignalSpy closed(&list, &Listbox::EditClosed);
    Type(1, 0, u"x"_s);
    EXPECT_EQ(list.Cell(1, 0), u"b"_s);
    EXPECT_EQ(list.ListIndex(), 1);
    list.SetListIndex(1); // The same row leaves the cell open.
    list.DropEdit();
    Type(1, 1, u"1"_s);
    list.EditCell(2, 0);
    list.EditCell(0, 2);
    EXPECT_EQ(actions, u""_s);
    Type(1, 1, u""_s);
    list.EndEdit();
    list.EndEdit();
    EXPECT_EQ(list.Cell(-1, -1) + u'|' + actions, u"a\t0\t\nb\t\t|11 "_s);
    EXPECT_EQ(u"%1 %2"_s.arg(opened.count()).arg(closed.count()), u"3 3"_s);
}

TEST_F(ListboxTest, WritesTheOpenCellIntoItsOwnRowBeforeTheRowsChange) {
    const std::function<void()> changes[] = {
        [this] { Fill({u"new"_s}); },      [this] { list.DeleteAllRows(); },
        [this] { list.PressHeading(0); },  [this] { list.SetListIndex(0); },
        [this] { list.SetListIndex(-1); }, [this] { list.EditCell(0, 0); },
        [this] { list.ToggleCheck(7, 2); }};
    for (const auto &change : changes) {
        Fill({u"b"_s, u"c"_s});
        Type(1, 0, u"a"_s);
        actions.clear();
        change();
        EXPECT_EQ(actions, u"10a "_s);
    }
}

TEST_F(ListboxTest, ShowsNoTextInACheckBoxColumnAndFlipsTheBox) {
    Fill({u"a"_s, u"b"_s});
    list.SetCellCheck(1, 2, true);
    list.ToggleCheck(0, 2);
    list.ToggleCheck(1, 2);
    list.ToggleCheck(0, 1);
    EXPECT_EQ(actions, u"02 12 "_s);
    EXPECT_TRUE(list.CellCheck(0, 2) && !list.CellCheck(1, 2));
    EXPECT_EQ(list.index(0, 2).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    EXPECT_EQ(list.index(0, 2).data(), QVariant());
    EXPECT_EQ(list.index(0, 1).data(Qt::CheckStateRole), QVariant());
}

} // namespace
