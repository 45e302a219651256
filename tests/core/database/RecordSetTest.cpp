#include "support/TestEnvironment.h"

class RecordSetTest : public testing::Test {
protected:
    RecordSetTest() {
        env.Add({});
        env.Add({});
        second = database.SQLSelect("SELECT * FROM cash_journal WHERE id = 2");
    }

    const TestEnvironment env;
    SQLiteDatabase &database = env.app.kvoDB();
    std::unique_ptr<RecordSet> second;
};

TEST_F(RecordSetTest, UpdatesOnlyTheFieldsSetSinceEdit) {
    second->Field("type"_L1).SetStringValue("A");
    second->Edit();
    second->Update(); // Nothing is set.
    second->Field("NOTE"_L1).SetStringValue("it's; 'new'");
    second->Field("amount"_L1).SetStringValue("12.50");
    env.Run("UPDATE cash_journal SET category = 'meanwhile', note = 'old'");
    second->Update();
    second->Update(); // There is no current row.
    EXPECT_EQ(database.ErrorMessage(), "");
    EXPECT_EQ(
        env.Value("SELECT group_concat(category || type || note || amount) FROM cash_journal"),
        "meanwhileEold1.0,meanwhileEit's; 'new'12.5");
}

TEST_F(RecordSetTest, ReportsAMissingColumnAndADeletedRow) {
    second->Field("fehlt"_L1).SetStringValue("x");
    second->Update();
    EXPECT_EQ(database.ErrorMessage(), "In der Datenbank fehlt eine Spalte.");
    second->Edit();
    second->Field("note"_L1).SetStringValue("x");
    env.Run("DELETE FROM cash_journal");
    second->Update();
    EXPECT_EQ(database.ErrorMessage(), "Der Datensatz ist nicht mehr vorhanden.");
}

TEST_F(RecordSetTest, ReadsNothingBeyondItsRowsAndColumns) {
    EXPECT_EQ(second->Field("fehlt"_L1).StringValue(), "");
    second->MoveNext();
    second->MoveNext(); // Does not restart the query.
    EXPECT_TRUE(second->AtEnd());
    EXPECT_EQ(second->IdxField(1).DoubleValue(), 0);
}

TEST_F(RecordSetTest, ReadsTextsNumbersAndDates) {
    const auto values = database.SQLSelect("SELECT char(0xFEFF, 65), '12,50', CAST('1,5' AS BLOB), "
                                           "'2026-02-28T10:00', '2026-02-281', '2026-02-30'");
    EXPECT_EQ(values->IdxField(1).StringValue().size(), 2) << "with the byte order mark";
    EXPECT_EQ(values->IdxField(2).DoubleValue(), 12.5);
    EXPECT_EQ(values->IdxField(3).DoubleValue(), 1.5);
    EXPECT_EQ(values->IdxField(4).DateValue(), Date(QDate(2026, 2, 28)));
    EXPECT_FALSE(values->IdxField(5).DateValue());
    EXPECT_FALSE(values->IdxField(6).DateValue());
}

TEST_F(RecordSetTest, ReadsBooleans) {
    env.Run("UPDATE cash_accounts SET active = 0");
    EXPECT_EQ(env.Value("SELECT active FROM cash_accounts"), "False");
}
