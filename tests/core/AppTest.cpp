#include "support/TestEnvironment.h"

#include <QFile>

TEST(App, OpensOnlyAnExistingFileAndWithoutAKey) {
    TestEnvironment env(TestEnvironment::Storage::File);
    MainWindow window(env.app);
    const QString encrypted = env.desktop.Path("data/Brevant/Zolmark.sdb");
    const QString plain = env.desktop.Path("plain");
    const auto open = [&](const QString &path) {
        env.desktop.fileToOpen = FolderItem(path);
        Q_EMIT window.menuBar.FileMenu().Child(u"FileOpen").Action();
        return env.app.kvoDB().DatabaseFile()->Path();
    };
    EXPECT_FALSE(env.app.DBLoad1());
    EXPECT_EQ(open(plain), encrypted);
    ASSERT_TRUE(QFile(plain).open(QIODevice::WriteOnly));
    EXPECT_EQ(open(plain), plain);
    EXPECT_FALSE(env.app.kvoDB().Error());
    EXPECT_EQ(open(encrypted), encrypted);
    EXPECT_TRUE(env.desktop.TakeMessages().startsWith("DB Connection Error: "));
}
