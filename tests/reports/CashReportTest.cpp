#include "shell/MainWindow.h"
#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

/// A window on a book, and a printer that the user has chosen.
class CashReportTest : public testing::Test {
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

    Book book;
    MainWindow window{book.app};
};

TEST_F(CashReportTest, DrawsWhatTheJournalShowsAndTheTotals) {
    book.Add({.date = u"2026-03-01"_s,
              .type = u"E"_s,
              .amount = u"119"_s,
              .category = u"Erlöse aus dem Verkauf von Holz"_s,
              .number = u"17"_s,
              .note = u"Barverkauf"_s});
    book.Add({.date = u"2026-03-02"_s, .type = u"A"_s, .amount = u"1234567.5"_s, .tax = u"0"_s});
    book.Add({.date = u"2025-03-02"_s, .type = u"E"_s, .amount = u"0.5"_s, .cashbook = u"2"_s});
    Open();
    const QStringList report = {
        u"333333 Courier 9 40 15 Holz & Söhne Werkstatt - Am Markt 1 - Köln"_s,
        u"333333 Courier 9 410 15 Sonntag, 15. März 2026"_s,
        u"333333 line 40 17 550 17"_s,
        u"333333 Courier 16 bold 40 45 Kassenbericht"_s,
        u"333333 Courier 10 underlined 40 75 Datum"_s,
        u"333333 Courier 10 underlined 100 75 Einnahme"_s,
        u"333333 Courier 10 underlined 162 75 Ausgabe"_s,
        u"333333 Courier 10 underlined 215 75 Bestand"_s,
        u"333333 Courier 10 underlined 270 75 Steuer"_s,
        u"333333 Courier 10 underlined 315 75 Art der Ein/Ausgabe"_s,
        u"333333 Courier 10 underlined 440 75 Nr."_s,
        u"333333 Courier 10 underlined 475 75 Notiz"_s,
        u"333333 Courier 10 40 95 01.03.2026"_s,
        u"333333 Courier 10 100 95   119,00"_s,
        u"333333 Courier 10 155 95         "_s,
        u"333333 Courier 10 210 95   219,00"_s,
        u"333333 Courier 10 270 95 19%"_s,
        u"333333 Courier 10 315 95 Erlöse aus dem Verka"_s,
        u"333333 Courier 10 440 95 17"_s,
        u"333333 Courier 10 475 95 Barverkauf"_s,
        u"333333 Courier 10 40 107 02.03.2026"_s,
        u"333333 Courier 10 100 107         "_s,
        u"333333 Courier 10 155 107 34567,50"_s,
        u"333333 Courier 10 210 107 34348,50"_s,
        u"333333 Courier 10 270 107 keine"_s,
        u"333333 Courier 10 315 107 Erlöse 19% USt"_s,
        u"333333 Courier 10 440 107 "_s,
        u"333333 Courier 10 475 107 "_s,
        u"333333 Courier 10 40 149 Anfangsbestand"_s,
        u"333333 Courier 10 40 164 Einnahmen"_s,
        u"333333 Courier 10 40 179 Ausgaben"_s,
        u"333333 Courier 10 bold 40 199 Endbestand"_s,
        u"333333 Courier 10 210 149   100,00"_s,
        u"333333 Courier 10 210 164   119,50"_s,
        u"333333 Courier 10 210 179 34567,50"_s,
        u"333333 Courier 10 bold 210 199 34348,50"_s,
        u"333333 Courier 10 bold 190 185 ___________"_s,
        u"333333 Courier 10 bold 190 204 ___________"_s};
    const QStringList drawn = Print();
    EXPECT_EQ(drawn.size(), report.size());
    for (qsizetype step = 0; step < std::min(drawn.size(), report.size()); ++step) {
        EXPECT_EQ(drawn[step], report[step]);
    }
}

TEST_F(CashReportTest, EndsAPageAfterItsLastLine) {
    struct Case {
        int rows;
        qsizetype pages;
        QString lastRow;
        QString totals;
    };
    const Case cases[] = {{0, 1, {}, u"40 125 Anfangsbestand"_s},
                          {56, 1, u"40 755 "_s, u"40 797 Anfangsbestand"_s},
                          {57, 2, u"40 767 "_s, u"40 125 Anfangsbestand"_s},
                          {58, 2, u"40 95 "_s, u"40 137 Anfangsbestand"_s}};
    Open();
    for (const Case &each : cases) {
        book.Run(u"DELETE FROM cash_journal"_s);
        book.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
                 "INSERT INTO cash_journal (vdate, type, amount, tax, cashbookID) "
                 "SELECT '2026-01-01', 'E', 1, '3', 1 FROM n WHERE i <= %1"_s.arg(each.rows));
        window.balances.Refresh();
        const QStringList drawn = Print();
        EXPECT_EQ(drawn.count(u"next page"_s) + 1, each.pages) << each.rows;
        EXPECT_EQ(drawn.filter(u" 01.01.2026"_s).value(each.rows - 1),
                  each.rows == 0 ? QString()
                                 : u"333333 Courier 10 "_s + each.lastRow + u"01.01.2026"_s);
        EXPECT_EQ(drawn.filter(u"Anfangsbestand"_s).value(0),
                  u"333333 Courier 10 "_s + each.totals);
        const QStringList later = drawn.mid(drawn.indexOf(u"next page"_s) + 1);
        EXPECT_EQ(later.value(0), u"333333 Courier %1 40 15 Holz & Söhne Werkstatt - Am Markt 1 - "
                                  "Köln"_s.arg(each.pages == 1 ? 9 : 10));
        EXPECT_EQ(later.filter(u"underlined"_s).size(), each.pages == 1 ? 8 : 0);
    }
}

TEST_F(CashReportTest, GoesOnWithoutTotalsAfterADatabaseErrorAndStopsWhenCancelled) {
    Open();
    book.Run(u"DROP TABLE cash_journal"_s);
    EXPECT_EQ(Print().last(3).first(), u"333333 Courier 10 bold 210 175         "_s);
    EXPECT_EQ(book.desktop.messages.size(), 2);
    book.desktop.paper.reset();
    window.MenuAction(u"print"_s);
    EXPECT_EQ(book.desktop.messages.size(), 2);
}

} // namespace
