#include "support/TestEnvironment.h"

TEST(RecordSet, UpdatesOnlyTheSetFieldsAndReportsADeletedRow) {
    TestEnvironment env;
    SQLiteDatabase &database = env.app.kvoDB();
    env.Add({"2026-01-01", "E", "1"});
    env.Add({"2026-01-02", "E", "2"});
    const QString second = "SELECT * FROM cash_journal WHERE id = 2";
    const auto records = database.SQLSelect(second);
    const auto stale = database.SQLSelect(second);
    records->Edit();
    records->Field("type"_L1).SetStringValue("A");
    records->Edit(); // Discards the fields that were set.
    records->Field("NOTE"_L1).SetStringValue("it's; 'new'");
    records->Field("amount"_L1).SetStringValue("12.50");
    env.Run("UPDATE cash_journal SET category = 'meanwhile', note = 'old'");
    records->Update();
    EXPECT_EQ(database.ErrorMessage(), QString());
    EXPECT_EQ(
        env.Value("SELECT group_concat(category || type || note || amount) FROM cash_journal"),
        "meanwhileEold1.0,meanwhileEit's; 'new'12.5");
    stale->Edit();
    stale->Field("fehlt"_L1).SetStringValue("x");
    stale->Update();
    EXPECT_EQ(database.ErrorMessage(), "In der Datenbank fehlt eine Spalte.");
    env.Run("DELETE FROM cash_journal"); // As by another program.
    stale->Edit();
    stale->Field("note"_L1).SetStringValue("x");
    stale->Update();
    EXPECT_EQ(database.ErrorMessage(), "Der Datensatz ist nicht mehr vorhanden.");
    database.SQLSelect(second)->Edit();
    EXPECT_EQ(database.ErrorMessage(), "Der Datensatz ist nicht mehr vorhanden.");
}

TEST(RecordSet, ReadsEveryValueType) {
    struct Row {
        const char *values;
        QString flag;
        double amount;
        std::optional<Date> day;
    };
    const Row rows[] = {{"'1', '12.50', '2026-02-28'", "True", 12.5, Date(QDate(2026, 2, 28))},
                        {"'0', '12,50', '2026-02-30'", "False", 12.5, std::nullopt},
                        {"1, 1, '2026-02-28T10:00:00'", "True", 1, Date(QDate(2026, 2, 28))},
                        {"1, 1, '2026-02-281'", "True", 1, std::nullopt},
                        {"NULL, NULL, NULL", "", 0, std::nullopt},
                        {"2, 'abc', 7", "True", 0, std::nullopt}};
    const TestEnvironment env;
    env.Run("CREATE TABLE t (flag boolean, amount double, day date)");
    for (const Row &each : rows) {
        env.Run(u"INSERT INTO t VALUES (%1)"_s.arg(QString::fromUtf8(each.values)));
    }
    const auto records = env.app.kvoDB().SQLSelect("SELECT * FROM t");
    for (const Row &each : rows) {
        EXPECT_EQ(records->Field("FLAG"_L1).StringValue(), each.flag) << each.values;
        EXPECT_EQ(records->IdxField(2).DoubleValue(), each.amount) << each.values;
        EXPECT_EQ(records->Field("day"_L1).DateValue(), each.day) << each.values;
        EXPECT_EQ(records->Field("fehlt"_L1).StringValue(), "");
        records->MoveNext();
    }
    records->MoveNext(); // Does not restart the query.
    EXPECT_TRUE(records->AtEnd() && records->IdxField(1).StringValue().isEmpty() &&
                !records->IdxField(2).DoubleValue());
}
