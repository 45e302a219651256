#include "support/TestEnvironment.h"

#include <QRegularExpression>

class CashReportTest : public EnvironmentTest {
protected:
    /// Returns the texts at a height, each after its size and style if they change.
    QString At(int y) const {
        const QRegularExpression step(u"^(333333 Courier )?(.* )?\\d+ %1 (.*)$"_s.arg(y));
        return drawn.filter(step).replaceInStrings(step, "\\2\\3").join('|');
    }

    QStringList &drawn = env.desktop.printout.emplace();
};

TEST_F(CashReportTest, PrintsTheJournalAndTheTotals) {
    env.Add({"2026-03-01", "E", "119", "3", "Erlöse aus dem Verkauf", "1", {}, "17", "bar"});
    env.Add({"2026-03-02", "A", "1234567.5", "0"});
    env.Add({.date = "2025-03-02", .amount = "0.5", .cashbook = "2"});
    env.Run("UPDATE core_company SET company = 'A', department = 'B', street = 'C', city = 'D'");
    window.Event_Open();
    window.MenuAction("print");
    EXPECT_EQ(At(15), "9 A B - C - D|Sonntag, 15. März 2026");
    EXPECT_EQ(At(17), "333333 line 550 17");
    EXPECT_EQ(At(45), "16 bold Kassenbericht");
    EXPECT_EQ(At(75),
              "10 underlined Datum|Einnahme|Ausgabe|Bestand|Steuer|Art der Ein/Ausgabe|Nr.|Notiz");
    EXPECT_EQ(At(95), "10 01.03.2026|  119,00|        |  219,00|19%|Erlöse aus dem Verka|17|bar");
    EXPECT_EQ(At(107), "02.03.2026|        |34567,50|34348,50|keine|Erlöse 19% USt||");
    EXPECT_EQ(At(149), "Anfangsbestand|10   100,00");
    EXPECT_EQ(At(164), "Einnahmen|  119,50") << "of all cash books and years";
    EXPECT_EQ(At(179), "Ausgaben|34567,50");
    EXPECT_EQ(At(199), "10 bold Endbestand|10 bold 34348,50");
    EXPECT_EQ(drawn.filter("___________").size(), 2);
}

TEST_F(CashReportTest, BreaksThePageAfter57Lines) {
    for (int row = 0; row < 58; ++row) {
        env.Add({});
    }
    window.Event_Open();
    window.MenuAction("print");
    EXPECT_EQ(drawn.count("next page"), 1);
    EXPECT_EQ(drawn.filter("15. März").size(), 2) << "each page has a header";
    EXPECT_EQ(At(137), "Anfangsbestand|10   100,00");
}
