#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

TEST(RecordSet, WritesOnlyTheFieldsThatWereSetAndTellsThatItsRowHasGone) {
    Book book;
    book.Add({u"2026-01-01"_s, u"E"_s, u"1"_s});
    book.Add({u"2026-01-02"_s, u"E"_s, u"2"_s});
    const QString second = u"SELECT * FROM cash_journal WHERE id = 2"_s;
    const auto records = book.app.kvoDB().SQLSelect(second);
    const auto late = book.app.kvoDB().SQLSelect(second);
    records->Edit();
    records->Field("NOTE"_L1).SetStringValue(u"it's; 'new'"_s);
    records->Field("amount"_L1).SetStringValue(u"12.50"_s);
    book.Run(u"UPDATE cash_journal SET category = 'meanwhile', note = 'old'"_s);
    records->Update();
    EXPECT_EQ(book.app.kvoDB().ErrorMessage(), QString());
    EXPECT_EQ(book.Value(u"SELECT group_concat(category || note || amount) FROM cash_journal"_s),
              u"meanwhileold1.0,meanwhileit's; 'new'12.5"_s);
    book.Run(u"DELETE FROM cash_journal"_s); // By another program.
    late->Edit();
    late->Field("note"_L1).SetStringValue(u"x"_s);
    late->Update();
    EXPECT_EQ(book.app.kvoDB().ErrorMessage(), u"Der Datensatz ist nicht mehr vorhanden."_s);
}

TEST(RecordSet, ReadsEveryKindOfValue) {
    Book book;
    book.Run(u"CREATE TABLE t (flag boolean, amount double, day date)"_s);
    book.Run(u"INSERT INTO t VALUES ('1', '12.50', '2026-02-28 10:00:00'), "
             "('0', '12,50', '2026-02-30'), (NULL, NULL, NULL), (2, 'abc', '2026-02-281')"_s);
    QStringList read;
    for (const auto records = book.app.kvoDB().SQLSelect(u"SELECT * FROM t"_s); !records->AtEnd();
         records->MoveNext()) {
        const auto day = records->Field("day"_L1).DateValue();
        read.append(u"%1 %2 %3"_s.arg(records->Field("flag"_L1).StringValue(),
                                      QString::number(records->IdxField(2).DoubleValue()),
                                      day ? day->SQLDate() : u"-"_s));
    }
    EXPECT_EQ(read.join(u", "_s), u"True 12.5 2026-02-28, False 12.5 -,  0 -, True 0 -"_s);
}

} // namespace
