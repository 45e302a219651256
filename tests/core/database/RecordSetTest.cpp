#include "support/TestEnvironment.h"

TEST(RecordSet, UpdatesOnlyTheSetFieldsAndReportsADeletedRow) {
    TestEnvironment env;
    SQLiteDatabase &database = env.app.kvoDB();
    env.Add({u"2026-01-01"_s, u"E"_s, u"1"_s});
    env.Add({u"2026-01-02"_s, u"E"_s, u"2"_s});
    const QString second = u"SELECT * FROM cash_journal WHERE id = 2"_s;
    const auto records = database.SQLSelect(second);
    const auto stale = database.SQLSelect(second);
    records->Edit();
    records->Field("type"_L1).SetStringValue(u"A"_s);
    records->Edit(); // Discards the fields that were set.
    records->Field("NOTE"_L1).SetStringValue(u"it's; 'new'"_s);
    records->Field("amount"_L1).SetStringValue(u"12.50"_s);
    env.Run(u"UPDATE cash_journal SET category = 'meanwhile', note = 'old'"_s);
    records->Update();
    EXPECT_EQ(database.ErrorMessage(), QString());
    EXPECT_EQ(env.Value(u"SELECT group_concat(category || type || note || amount) FROM cash_journal"_s),
              u"meanwhileEold1.0,meanwhileEit's; 'new'12.5"_s);
    stale->Edit();
    stale->Field("fehlt"_L1).SetStringValue(u"x"_s);
    stale->Update();
    EXPECT_EQ(database.ErrorMessage(), u"In der Datenbank fehlt eine Spalte."_s);
    env.Run(u"DELETE FROM cash_journal"_s); // As by another program.
    stale->Edit();
    stale->Field("note"_L1).SetStringValue(u"x"_s);
    stale->Update();
    EXPECT_EQ(database.ErrorMessage(), u"Der Datensatz ist nicht mehr vorhanden."_s);
    database.SQLSelect(second)->Edit();
    EXPECT_EQ(database.ErrorMessage(), u"Der Datensatz ist nicht mehr vorhanden."_s);
}

TEST(RecordSet, ReadsEveryValueType) {
    struct Row {
        const char *values;
        QString flag;
        double amount;
        std::optional<Date> day;
    };
    const Row rows[] = {{"'1', '12.50', '2026-02-28'", u"True"_s, 12.5, Date(QDate(2026, 2, 28))},
                        {"'0', '12,50', '2026-02-30'", u"False"_s, 12.5, std::nullopt},
                        {"1, 1, '2026-02-28T10:00:00'", u"True"_s, 1, Date(QDate(2026, 2, 28))},
                        {"1, 1, '2026-02-281'", u"True"_s, 1, std::nullopt},
                        {"NULL, NULL, NULL", u""_s, 0, std::nullopt},
                        {"2, 'abc', 7", u"True"_s, 0, std::nullopt}};
    const TestEnvironment env;
    env.Run(u"CREATE TABLE t (flag boolean, amount double, day date)"_s);
    for (const Row &each : rows) { env.Run(u"INSERT INTO t VALUES (%1)"_s.arg(QString::fromUtf8(each.values))); }
    const auto records = env.app.kvoDB().SQLSelect(u"SELECT * FROM t"_s);
    for (const Row &each : rows) {
        EXPECT_EQ(records->Field("FLAG"_L1).StringValue(), each.flag) << each.values;
        EXPECT_EQ(records->IdxField(2).DoubleValue(), each.amount) << each.values;
        EXPECT_EQ(records->Field("day"_L1).DateValue(), each.day) << each.values;
        EXPECT_EQ(records->Field("fehlt"_L1).StringValue(), u""_s);
        records->MoveNext();
    }
    records->MoveNext(); // Does not restart the query.
    EXPECT_TRUE(records->AtEnd() && records->IdxField(1).StringValue().isEmpty() &&
                !records->IdxField(2).DoubleValue());
}
