#include "support/Book.h"

TEST(App, OpensTheDefaultFileOrAChosenOneWithoutAKey) {
    Book book(Book::Place::File);
    MainWindow window(book.app);
    const QString name = u"SELECT name FROM cash_book"_s;
    const auto opens = [&](const QString &file) {
        book.desktop.fileToOpen = FolderItem(file);
        Q_EMIT window.menuBar.FileMenu().Child(u"FileOpen").Action();
        return book.desktop.TakeMessages();
    };
    EXPECT_EQ(book.app.DefaultDatabaseFile().Path(), book.desktop.Path(u"data/Brevant/Zolmark.sdb"_s));
    EXPECT_FALSE(book.app.DBLoad1()) << "nothing was chosen";
    EXPECT_EQ(opens(book.desktop.Path(u"nowhere"_s)), QString());
    EXPECT_EQ(book.Value(name), u"Kasse"_s);
    SQLiteDatabase plain;
    plain.SetDatabaseFile(FolderItem(book.desktop.Path(u"plain"_s)));
    ASSERT_TRUE(plain.CreateDatabaseFile());
    plain.SQLExecute(u"CREATE TABLE cash_book AS SELECT 'offen' AS name"_s);
    EXPECT_EQ(opens(book.desktop.Path(u"plain"_s)), QString());
    EXPECT_EQ(book.Value(name), u"offen"_s);
    EXPECT_EQ(opens(book.app.DefaultDatabaseFile().Path()).section(u':', 0, 0), u"DB Connection Error"_s);
}
