#include "support/Book.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString nameOfTheBook = u"SELECT name FROM cash_book"_s;

TEST(App, LoadsTheDefaultFileOfItsDesktop) {
    Book book(Book::Place::File);
    EXPECT_EQ(book.app.DefaultDatabaseFile().Path(),
              book.desktop.ApplicationData().Path() + u"/Brevant/Zolmark.sdb"_s);
    ASSERT_TRUE(book.app.DBLoad());
    book.app.Connect();
    EXPECT_EQ(book.Value(nameOfTheBook), u"Kasse"_s);
    ASSERT_TRUE(QFile::remove(book.app.DefaultDatabaseFile().Path()));
    EXPECT_FALSE(book.app.DBLoad());
    EXPECT_FALSE(book.app.kvoDB().SQLSelect(nameOfTheBook));
    EXPECT_TRUE(book.app.ReportError());
    EXPECT_EQ(book.desktop.TakeMessages(), u"DB Error: Es ist keine Datenbank geöffnet."_s);
}

TEST(App, OpensAChosenFileWithoutAKeyAndKeepsTheBookOnACancel) {
    Book book(Book::Place::File);
    EXPECT_FALSE(book.app.DBLoad1());
    book.desktop.fileToOpen = FolderItem(book.desktop.Path(u"plain"_s));
    EXPECT_FALSE(book.app.DBLoad1());
    EXPECT_EQ(book.Value(nameOfTheBook), u"Kasse"_s);
    SQLiteDatabase plain;
    plain.SetDatabaseFile(*book.desktop.fileToOpen);
    ASSERT_TRUE(plain.CreateDatabaseFile());
    plain.SQLExecute(u"CREATE TABLE cash_book AS SELECT 'offen' AS name"_s);
    ASSERT_TRUE(book.app.DBLoad1());
    book.app.Connect();
    EXPECT_EQ(book.Value(nameOfTheBook), u"offen"_s);
    book.desktop.fileToOpen = book.app.DefaultDatabaseFile();
    ASSERT_TRUE(book.app.DBLoad1());
    book.app.Connect();
    EXPECT_EQ(book.desktop.TakeMessages(),
              u"DB Connection Error: "_s + book.app.kvoDB().ErrorMessage());
}

} // namespace
