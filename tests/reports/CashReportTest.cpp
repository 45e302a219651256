#include "support/BookTest.h"

using namespace Qt::StringLiterals;

namespace {

/// A window on a book, and a printer that the user has chosen.
class CashReportTest : public BookTest {
protected:
    void Open() {
        book.Run(u"UPDATE core_company SET company = 'Holz & Söhne', department = 'Werkstatt', "
                 "street = 'Am Markt 1', city = 'Köln'"_s);
        window.Event_Open();
        book.desktop.paper.emplace();
    }
    QStringList Print() {
        window.MenuAction(u"print"_s);
        return *std::exchange(book.desktop.paper, QStringList());
    }
};

TEST_F(CashReportTest, DrawsWhatTheJournalShowsAndTheTotals) {
    const QString wood = u"Erlöse aus dem Verkauf von Holz"_s;
    book.Add({u"2026-03-01"_s, u"E"_s, u"119"_s, u"3"_s, wood, u"1"_s, {}, u"17"_s, u"bar"_s});
    book.Add({u"2026-03-02"_s, u"A"_s, u"1234567.5"_s, u"0"_s});
    book.Add({.date = u"2025-03-02"_s, .type = u"E"_s, .amount = u"0.5"_s, .cashbook = u"2"_s});
    Open();
    EXPECT_EQ(
        Print().join(u'|'),
        u"333333 Courier 9 40 15 Holz & Söhne Werkstatt - Am Markt 1 - Köln|"
        "410 15 Sonntag, 15. März 2026|333333 line 40 17 550 17|"
        "333333 Courier 16 bold 40 45 Kassenbericht|"
        "333333 Courier 10 underlined 40 75 Datum|100 75 Einnahme|162 75 Ausgabe|215 75 Bestand|"
        "270 75 Steuer|315 75 Art der Ein/Ausgabe|440 75 Nr.|475 75 Notiz|"
        "333333 Courier 10 40 95 01.03.2026|100 95   119,00|155 95         |210 95   219,00|"
        "270 95 19%|315 95 Erlöse aus dem Verka|440 95 17|475 95 bar|"
        "40 107 02.03.2026|100 107         |155 107 34567,50|210 107 34348,50|"
        "270 107 keine|315 107 Erlöse 19% USt|440 107 |475 107 |"
        "40 149 Anfangsbestand|40 164 Einnahmen|40 179 Ausgaben|"
        "333333 Courier 10 bold 40 199 Endbestand|"
        "333333 Courier 10 210 149   100,00|210 164   119,50|210 179 34567,50|"
        "333333 Courier 10 bold 210 199 34348,50|190 185 ___________|190 204 ___________"_s);
}

TEST_F(CashReportTest, EndsAPageAfterItsLastLine) {
    const std::tuple<int, qsizetype, QString, QString> cases[] = {
        {56, 1, u"40 755 01.01.2026"_s, u"40 797 Anfangsbestand"_s},
        {57, 2, u"40 767 01.01.2026"_s, u"40 125 Anfangsbestand"_s},
        {58, 2, u"40 95 01.01.2026"_s, u"40 137 Anfangsbestand"_s}};
    Open();
    for (const auto &[count, pages, lastRow, totals] : cases) {
        book.Run(u"DELETE FROM cash_journal"_s);
        book.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                 "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
                 "SELECT '2026-01-01', 'E', 1, '3', 1 FROM n WHERE i <= %1"_s.arg(count));
        window.journal.Reload();
        const QStringList drawn = Print();
        const QStringList rows = drawn.filter(u" 01.01.2026"_s);
        EXPECT_EQ(rows.size(), count);
        EXPECT_TRUE(rows.value(count - 1).endsWith(lastRow)) << count;
        EXPECT_TRUE(drawn.filter(u"Anfangsbestand"_s).value(0).endsWith(totals)) << count;
        EXPECT_EQ(drawn.count(u"next page"_s) + 1, pages) << count;
    }
}

} // namespace
