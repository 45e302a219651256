#include "support/TestEnvironment.h"

class CashReportTest : public EnvironmentTest {
protected:
    void Open() {
        env.Run("UPDATE core_company SET company = 'Holz & Söhne', department = 'Werkstatt', "
                "street = 'Am Markt 1', city = 'Köln'");
        window.Event_Open();
        env.desktop.printout.emplace();
    }
    QStringList Print() {
        window.MenuAction("print");
        return *std::exchange(env.desktop.printout, QStringList());
    }
};

TEST_F(CashReportTest, PrintsTheJournalAndTheTotals) {
    const QString wood = "Erlöse aus dem Verkauf von Holz";
    env.Add({"2026-03-01", "E", "119", "3", wood, "1", {}, "17", "bar"});
    env.Add({"2026-03-02", "A", "1234567.5", "0"});
    env.Add({.date = "2025-03-02", .type = "E", .amount = "0.5", .cashbook = "2"});
    Open();
    const QStringList lines[] = {
        {"333333 Courier 9 40 15 Holz & Söhne Werkstatt - Am Markt 1 - Köln",
         "410 15 Sonntag, 15. März 2026", "333333 line 40 17 550 17",
         "333333 Courier 16 bold 40 45 Kassenbericht"},
        {"333333 Courier 10 underlined 40 75 Datum", "100 75 Einnahme", "162 75 Ausgabe",
         "215 75 Bestand"},
        {"270 75 Steuer", "315 75 Art der Ein/Ausgabe", "440 75 Nr.", "475 75 Notiz"},
        {"333333 Courier 10 40 95 01.03.2026", "100 95   119,00", "155 95         ",
         "210 95   219,00"},
        {"270 95 19%", "315 95 Erlöse aus dem Verka", "440 95 17", "475 95 bar"},
        {"40 107 02.03.2026", "100 107         ", "155 107 34567,50", "210 107 34348,50"},
        {"270 107 keine", "315 107 Erlöse 19% USt", "440 107 ", "475 107 "},
        {"40 149 Anfangsbestand", "40 164 Einnahmen", "40 179 Ausgaben",
         "333333 Courier 10 bold 40 199 Endbestand"},
        {"333333 Courier 10 210 149   100,00", "210 164   119,50", "210 179 34567,50",
         "333333 Courier 10 bold 210 199 34348,50"},
        {"190 185 ___________", "190 204 ___________"}};
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
    const Case cases[] = {{56, 1, "40 755 01.01.2026", "40 797 Anfangsbestand"},
                          {57, 2, "40 767 01.01.2026", "40 125 Anfangsbestand"},
                          {58, 2, "40 95 01.01.2026", "40 137 Anfangsbestand"}};
    Open();
    for (const Case &each : cases) {
        env.Run("DELETE FROM cash_journal");
        env.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
                "SELECT '2026-01-01', 'E', 1, '3', 1 FROM n WHERE i <= %1"_s.arg(each.rows));
        window.journal.Reload();
        const QStringList drawn = Print();
        const QStringList rows = drawn.filter(" 01.01.2026");
        EXPECT_EQ(rows.size(), each.rows);
        EXPECT_TRUE(rows.value(each.rows - 1).endsWith(each.lastRow)) << each.rows;
        EXPECT_TRUE(drawn.filter("Anfangsbestand").value(0).endsWith(each.totals)) << each.rows;
        EXPECT_EQ(drawn.count("next page") + 1, each.pages) << each.rows;
        EXPECT_EQ(drawn.filter("Sonntag, 15. März").size(), each.pages) << "each page has a header";
    }
}
