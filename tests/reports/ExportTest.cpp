#include "shell/MainWindow.h"
#include "support/Book.h"
#include "support/FullDisk.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QByteArray headings("Belegdatum;Buchungsbetrag;Steuerschl\xFCssel;Steuer;Buchungstext;"
                          "Belegnummer;Sollkonto;Habenkonto;W\xE4hrung;Notiz;Intern\r\n");

/// A window on a book, and the name of a file that the user has chosen.
class ExportTest : public testing::Test {
protected:
    ExportTest() { book.desktop.fileToSave = FolderItem(book.desktop.Path(u"export.txt"_s)); }

    QByteArray Export() {
        window.MenuAction(u"export"_s);
        return Written();
    }
    QByteArray Written() const {
        QFile file(book.desktop.fileToSave->Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    Book book;
    MainWindow window{book.app};
};

TEST_F(ExportTest, WritesTheYearOfTheCashBookByteForByte) {
    book.Run(u"INSERT INTO cash_book (id, name, account) VALUES ('7', 'Laden', '1010')"_s);
    book.Add({.date = u"2026-12-31"_s,
              .type = u"A"_s,
              .amount = u"0.5"_s,
              .tax = u"0"_s,
              .category = u"Bürobedarf"_s,
              .account = u"4930"_s,
              .note = u"a;b\tc\nd\re\r\nf"_s});
    book.Add({.date = u"2026-03-15"_s,
              .type = u"e"_s,
              .amount = u"119"_s,
              .number = u"17"_s,
              .note = u"5 € „Łódź“ ⅔ Жук 🎉 Mu\u0308ller"_s});
    book.Add({.date = u"2026-04-01"_s, .type = u"A"_s, .amount = u"-3"_s, .tax = u"77"_s});
    book.Add({.date = u"2025-03-15"_s, .type = u"E"_s, .amount = u"1"_s});
    book.Add({.date = u"2026-05-01"_s, .type = u"E"_s, .amount = u"2"_s, .cashbook = u"7"_s});
    book.Run(u"UPDATE cash_journal SET account = NULL, note = NULL WHERE cashbookID = 7"_s);
    window.Event_Open();
    window.selectors.MonthPopup.SetListIndex(3);
    EXPECT_EQ(Export(),
              headings +
                  "15.03.2026;119,00;3;19% USt.;Erl\xF6se 19% USt;17;1000;8400;EUR;5 \x80 \x84L\xF3"
                  "dz\x93  2/3 Zuk ? M\xFCller;\r\n"
                  "31.12.2026;0,50;0;keine;B\xFCrobedarf;;4930;1000;EUR;a;b;c\r\nd\r\ne\r\nf;");
    EXPECT_EQ(book.desktop.saveDialog->initialDirectory.Path(), book.desktop.Path(u"desk"_s));
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(Export(), headings + "01.05.2026;2,00;3;19% USt.;Erl\xF6se 19% USt;;1010;;EUR;;");
    window.selectors.CashbookPopup.DeleteAllRows();
    window.selectors.YearPopup.SetListIndex(1);
    EXPECT_TRUE(Export().startsWith(headings + "15.03.2025;"));
}

TEST_F(ExportTest, LeavesTheOldFileWhenTheNewOneCannotBeWritten) {
    window.Event_Open();
    book.desktop.fileToSave.reset();
    window.MenuAction(u"export"_s);
    EXPECT_EQ(book.desktop.messages, QStringList());
    const QString path = book.desktop.Path(u"export.txt"_s);
    book.desktop.fileToSave = FolderItem(path);
    EXPECT_EQ(Export(), headings);
    {
        const FullDisk disk(headings.size() - 1);
        window.MenuAction(u"export"_s);
    }
    EXPECT_EQ(Written(), headings);
    EXPECT_EQ(QDir(book.desktop.Path({})).entryList(QDir::Files), QStringList(u"export.txt"_s));
    book.desktop.fileToSave = FolderItem(path + u"/no/folder.txt"_s);
    EXPECT_EQ(Export(), QByteArray());
    ASSERT_EQ(book.desktop.messages.size(), 2);
    EXPECT_TRUE(book.desktop.messages[0].startsWith(u"Die Datei %1 konnte nicht "_s.arg(path)));
}

TEST_F(ExportTest, GoesOnWithTheListBeforeAfterADatabaseError) {
    window.Event_Open();
    book.Run(u"ALTER TABLE cash_tax RENAME TO moved"_s);
    EXPECT_EQ(Export(), "Belegdatum;Buchungsbetrag;Steuerschl\xFCssel;Buchungstext;Belegnummer;"
                        "Sollkonto;Habenkonto;W\xE4hrung;Notiz;Leer;\r\n");
    EXPECT_EQ(book.desktop.messages, QStringList(u"DB Error: no such table: cash_tax"_s));
}

} // namespace
