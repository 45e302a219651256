#include "support/TestEnvironment.h"

class CashReportTest : public EnvironmentTest {
protected:
    void Open() {
        env.Run(u"UPDATE core_company SET company = 'Holz & Söhne', department = 'Werkstatt', "
                "street = 'Am Markt 1', city = 'Köln'"_s);
        window.Event_Open();
        env.desktop.printout.emplace();
    }
    QStringList Print() {
        window.MenuAction(u"print"_s);
        return *std::exchange(env.desktop.printout, QStringList());
    }
};

TEST_F(CashReportTest, PrintsTheJournalAndTheTotals) {
    const QString wood = u"Erlöse aus dem Verkauf von Holz"_s;
    env.Add({u"2026-03-01"_s, u"E"_s, u"119"_s, u"3"_s, wood, u"1"_s, {}, u"17"_s, u"bar"_s});
    env.Add({u"2026-03-02"_s, u"A"_s, u"1234567.5"_s, u"0"_s});
    env.Add({.date = u"2025-03-02"_s, .type = u"E"_s, .amount = u"0.5"_s, .cashbook = u"2"_s});
    Open();
    const QStringList lines[] = {
        {u"333333 Courier 9 40 15 Holz & Söhne Werkstatt - Am Markt 1 - Köln"_s, u"410 15 Sonntag, 15. März 2026"_s,
         u"333333 line 40 17 550 17"_s, u"333333 Courier 16 bold 40 45 Kassenbericht"_s},
        {u"333333 Courier 10 underlined 40 75 Datum"_s, u"100 75 Einnahme"_s, u"162 75 Ausgabe"_s, u"215 75 Bestand"_s},
        {u"270 75 Steuer"_s, u"315 75 Art der Ein/Ausgabe"_s, u"440 75 Nr."_s, u"475 75 Notiz"_s},
        {u"333333 Courier 10 40 95 01.03.2026"_s, u"100 95   119,00"_s, u"155 95         "_s, u"210 95   219,00"_s},
        {u"270 95 19%"_s, u"315 95 Erlöse aus dem Verka"_s, u"440 95 17"_s, u"475 95 bar"_s},
        {u"40 107 02.03.2026"_s, u"100 107         "_s, u"155 107 34567,50"_s, u"210 107 34348,50"_s},
        {u"270 107 keine"_s, u"315 107 Erlöse 19% USt"_s, u"440 107 "_s, u"475 107 "_s},
        {u"40 149 Anfangsbestand"_s, u"40 164 Einnahmen"_s, u"40 179 Ausgaben"_s,
         u"333333 Courier 10 bold 40 199 Endbestand"_s},
        {u"333333 Courier 10 210 149   100,00"_s, u"210 164   119,50"_s, u"210 179 34567,50"_s,
         u"333333 Courier 10 bold 210 199 34348,50"_s},
        {u"190 185 ___________"_s, u"190 204 ___________"_s}};
    QStringList drawn = Print();
    for (const QStringList &line : lines) {
        EXPECT_EQ(drawn.mid(0, line.size()), line);
        drawn = drawn.mid(line.size());
    }
    EXPECT_EQ(drawn, QStringList());
}

TEST_F(CashReportTest, BreaksThePageAfterItsLastLine) {
    struct Case {
        int rows;
        qsizetype pages;
        QString lastRow, totals;
    };
    const Case cases[] = {{56, 1, u"40 755 01.01.2026"_s, u"40 797 Anfangsbestand"_s},
                          {57, 2, u"40 767 01.01.2026"_s, u"40 125 Anfangsbestand"_s},
                          {58, 2, u"40 95 01.01.2026"_s, u"40 137 Anfangsbestand"_s}};
    Open();
    for (const Case &each : cases) {
        env.Run(u"DELETE FROM cash_journal"_s);
        env.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
                "SELECT '2026-01-01', 'E', 1, '3', 1 FROM n WHERE i <= %1"_s.arg(each.rows));
        window.journal.Reload();
        const QStringList drawn = Print();
        const QStringList rows = drawn.filter(u" 01.01.2026"_s);
        EXPECT_EQ(rows.size(), each.rows);
        EXPECT_TRUE(rows.value(each.rows - 1).endsWith(each.lastRow)) << each.rows;
        EXPECT_TRUE(drawn.filter(u"Anfangsbestand"_s).value(0).endsWith(each.totals)) << each.rows;
        EXPECT_EQ(drawn.count(u"next page"_s) + 1, each.pages) << each.rows;
        EXPECT_EQ(drawn.filter(u"Sonntag, 15. März"_s).size(), each.pages) << "each page has a header";
    }
}
