#include "support/TestEnvironment.h"

TEST(App, OpensTheDefaultFileAndChosenUnencryptedFiles) {
    TestEnvironment env(TestEnvironment::Storage::File);
    MainWindow window(env.app);
    const QString name = u"SELECT name FROM cash_book"_s;
    const auto open = [&](const QString &file) {
        env.desktop.fileToOpen = FolderItem(file);
        Q_EMIT window.menuBar.FileMenu().Child(u"FileOpen").Action();
        return env.desktop.TakeMessages();
    };
    EXPECT_EQ(env.app.DefaultDatabaseFile().Path(), env.desktop.Path(u"data/Brevant/Zolmark.sdb"_s));
    EXPECT_FALSE(env.app.DBLoad1()) << "no file was chosen";
    EXPECT_EQ(open(env.desktop.Path(u"nowhere"_s)), QString());
    EXPECT_EQ(env.Value(name), u"Kasse"_s);
    SQLiteDatabase plain;
    plain.SetDatabaseFile(FolderItem(env.desktop.Path(u"plain"_s)));
    ASSERT_TRUE(plain.CreateDatabaseFile());
    plain.SQLExecute(u"CREATE TABLE cash_book AS SELECT 'offen' AS name"_s);
    EXPECT_EQ(open(env.desktop.Path(u"plain"_s)), QString());
    EXPECT_EQ(env.Value(name), u"offen"_s);
    EXPECT_EQ(open(env.app.DefaultDatabaseFile().Path()).section(u':', 0, 0), u"DB Connection Error"_s);
}
