#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

TEST(App, OpensTheDefaultFileOrAChosenOneWithoutAKey) {
    Book book(Book::Place::File);
    const QString name = u"SELECT name FROM cash_book"_s;
    EXPECT_EQ(book.app.DefaultDatabaseFile().Path(),
              book.desktop.ApplicationData().Path() + u"/Brevant/Zolmark.sdb"_s);
    EXPECT_FALSE(book.app.DBLoad1()) << "nothing was chosen";
    EXPECT_EQ(book.Value(name), u"Kasse"_s);
    book.desktop.fileToOpen = FolderItem(book.desktop.Path(u"plain"_s));
    SQLiteDatabase plain;
    plain.SetDatabaseFile(*book.desktop.fileToOpen);
    ASSERT_TRUE(plain.CreateDatabaseFile());
    plain.SQLExecute(u"CREATE TABLE cash_book AS SELECT 'offen' AS name"_s);
    ASSERT_TRUE(book.app.DBLoad1());
    book.app.Connect();
    EXPECT_EQ(book.Value(name), u"offen"_s);
    book.desktop.fileToOpen = book.app.DefaultDatabaseFile();
    ASSERT_TRUE(book.app.DBLoad1());
    book.app.Connect();
    EXPECT_EQ(book.desktop.TakeMessages(),
              u"DB Connection Error: "_s + book.app.kvoDB().ErrorMessage());
}

} // namespace
