#include "support/TestEnvironment.h"

TEST(App, OpensTheDefaultFileAndChosenUnencryptedFiles) {
    TestEnvironment env(TestEnvironment::Storage::File);
    MainWindow window(env.app);
    const QString name = "SELECT name FROM cash_book";
    const auto open = [&](const QString &file) {
        env.desktop.fileToOpen = FolderItem(file);
        Q_EMIT window.menuBar.FileMenu().Child(u"FileOpen").Action();
        return env.desktop.TakeMessages();
    };
    EXPECT_EQ(env.app.DefaultDatabaseFile().Path(), env.desktop.Path("data/Brevant/Zolmark.sdb"));
    EXPECT_FALSE(env.app.DBLoad1()) << "no file was chosen";
    EXPECT_EQ(open(env.desktop.Path("nowhere")), QString());
    EXPECT_EQ(env.Value(name), "Kasse");
    SQLiteDatabase plain;
    plain.SetDatabaseFile(FolderItem(env.desktop.Path("plain")));
    ASSERT_TRUE(plain.CreateDatabaseFile());
    plain.SQLExecute("CREATE TABLE cash_book AS SELECT 'offen' AS name");
    EXPECT_EQ(open(env.desktop.Path("plain")), QString());
    EXPECT_EQ(env.Value(name), "offen");
    EXPECT_EQ(open(env.app.DefaultDatabaseFile().Path()).section(u':', 0, 0),
              "DB Connection Error");
}
