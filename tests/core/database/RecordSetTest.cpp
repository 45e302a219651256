#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

class RecordSetTest : public testing::Test {
protected:
    RecordSetTest() {
        book.Add({u"2026-01-01"_s, u"E"_s, u"1"_s});
        book.Add({u"2026-01-02"_s, u"E"_s, u"2"_s});
    }

    Book book;
    SQLiteDatabase &database = book.app.kvoDB();
};

TEST_F(RecordSetTest, CountsItsRowsAndStaysWhereItIs) {
    const auto records = database.SQLSelect(u"SELECT * FROM cash_tax LIMIT 3"_s);
    auto id = records->Field("ID"_L1);
    for (const auto &expected : {u"1"_s, u"2"_s, u"3"_s, u""_s}) {
        EXPECT_EQ(records->RecordCount(), 3);
        EXPECT_EQ(id.StringValue(), expected);
        records->MoveNext();
    }
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(database.SQLSelect(u"SELECT * FROM cash_tax WHERE 0"_s)->RecordCount(), 0);
}

TEST_F(RecordSetTest, WritesOnlyTheFieldsThatWereSet) {
    const auto records = database.SQLSelect(u"SELECT * FROM cash_journal WHERE id = 2"_s);
    records->Edit();
    records->Field("category"_L1).SetStringValue(u"verworfen"_s);
    records->Edit();
    records->Field("NOTE"_L1).SetStringValue(u"it's; 'new'"_s);
    records->Field("amount"_L1).SetStringValue(u"12.50"_s);
    book.Run(u"UPDATE cash_journal SET category = 'meanwhile', note = 'old'"_s);
    records->Update();
    EXPECT_EQ(database.ErrorMessage(), QString());
    EXPECT_EQ(book.Value(u"SELECT group_concat(category || note || amount) FROM cash_journal"_s),
              u"meanwhileold1.0,meanwhileit's; 'new'12.5"_s);
}

TEST_F(RecordSetTest, TellsWhatCannotBeChanged) {
    const QString gone = u"Der Datensatz ist nicht mehr vorhanden."_s;
    const std::tuple<QString, QLatin1StringView, QString> cases[] = {
        {u"SELECT * FROM cash_journal WHERE id = 2"_s, "note"_L1, gone},
        {u"SELECT * FROM cash_journal WHERE id = 3"_s, "note"_L1, gone}, // There never was one.
        {u"SELECT * FROM cash_journal"_s, "missing"_L1, u"In der Datenbank fehlt eine Spalte."_s}};
    for (const auto &[sql, column, message] : cases) {
        const auto records = database.SQLSelect(sql);
        book.Run(u"DELETE FROM cash_journal WHERE id = 2"_s); // Meanwhile.
        records->Edit();
        records->Field(column).SetStringValue(u"x"_s);
        records->Update();
        EXPECT_EQ(database.ErrorMessage(), message) << qPrintable(sql);
    }
}

TEST_F(RecordSetTest, ReadsEveryKindOfValue) {
    book.Run(u"CREATE TABLE t (flag boolean, amount double, day date)"_s);
    book.Run(u"INSERT INTO t VALUES ('1', '12.50', '2026-02-28 10:00:00'), "
             "('0', '12,50', '2026-02-30'), (NULL, NULL, NULL), (2, 'abc', 2026)"_s);
    const auto records = database.SQLSelect(u"SELECT * FROM t"_s);
    QStringList read;
    for (; !records->AtEnd(); records->MoveNext()) {
        const auto day = records->Field("day"_L1).DateValue();
        read.append(u"%1 %2 %3"_s.arg(records->Field("flag"_L1).StringValue(),
                                      QString::number(records->IdxField(2).DoubleValue()),
                                      day ? day->SQLDate() : u"-"_s));
        EXPECT_EQ(records->Field("missing"_L1).StringValue(), u""_s);
        EXPECT_EQ(records->IdxField(0).StringValue() + records->IdxField(4).StringValue(), u""_s);
    }
    EXPECT_EQ(read.join(u", "_s), u"True 12.5 2026-02-28, False 12.5 -,  0 -, True 0 -"_s);
}

} // namespace
