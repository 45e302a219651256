#include "core/database/Transaction.h"
#include "support/TestEnvironment.h"

#include <QDir>
#include <QElapsedTimer>

#include <sys/stat.h>

using namespace std::chrono_literals;

static QByteArray Bytes(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
}

TEST(SQLiteDatabase, SetsThePragmasAndEncryptsTheFile) {
    struct Case {
        QString pragma, value;
    };
    const Case cases[] = {{"cipher_page_size", "1024"}, {"kdf_iter", "64000"},
                          {"journal_mode", "delete"},   {"synchronous", "2"},
                          {"temp_store", "2"},          {"cache_size", "-65536"}};
    const TestEnvironment env(TestEnvironment::Storage::File);
    for (const Case &each : cases) {
        EXPECT_EQ(env.Value("PRAGMA " + each.pragma), each.value) << each.pragma;
    }
    const QByteArray bytes = Bytes(env.app.DefaultDatabaseFile().Path());
    EXPECT_FALSE(bytes.contains("SQLite format") || bytes.contains("Kasse"));
}

TEST(SQLiteDatabase, LeavesUnreadableFilesUnchanged) {
    struct Case {
        QByteArray content, key;
        bool opens;
    };
    const TestEnvironment env(TestEnvironment::Storage::File);
    const QByteArray encrypted = Bytes(env.app.DefaultDatabaseFile().Path());
    const QByteArray text = QByteArray("Kein Kassenbuch. ").repeated(200);
    const Case cases[] = {{encrypted, fixedKey, true}, {"", fixedKey, true},
                          {text, fixedKey, false},     {text, "", false},
                          {encrypted, "rk", false},    {encrypted, "", false}};
    const QDir folder(env.desktop.Path("files"));
    ASSERT_TRUE(folder.mkpath("."));
    const QString path = folder.filePath("Zolmark.sdb");
    SQLiteDatabase database;
    database.SetDatabaseFile(FolderItem(path));
    EXPECT_FALSE(database.Connect()) << "the file does not exist";
    for (const Case &each : cases) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(each.content) >= 0);
        file.close();
        database.SetEncryptionKey(each.key);
        EXPECT_EQ(database.Connect(), each.opens) << each.content.left(9).data();
        EXPECT_EQ(database.ErrorMessage().isEmpty(), each.opens);
        EXPECT_EQ(Bytes(path), each.content);
        EXPECT_EQ(folder.entryList(QDir::Files).size(), 1);
    }
}

TEST(SQLiteDatabase, RejectsAPipeWithoutWaiting) {
    const FakeDesktop desktop;
    const FolderItem pipe(desktop.Path("Zolmark.sdb"));
    ASSERT_EQ(mkfifo(qUtf8Printable(pipe.Path()), 0600), 0);
    SQLiteDatabase database;
    App::UseFile(database, pipe);
    EXPECT_FALSE(database.Connect());
    EXPECT_EQ(database.ErrorMessage(), "unable to open database file");
}

TEST(Transaction, RollsBackUnlessCommitted) {
    const TestEnvironment env;
    const QString count = "SELECT count(*) FROM cash_tax WHERE name = 'neu'";
    const QString insert = "INSERT INTO cash_tax (name) VALUES ('neu')";
    {
        const Transaction rolledBack(env.app.kvoDB());
        env.Run(insert);
    }
    EXPECT_EQ(env.Value(count), "0");
    {
        Transaction committed(env.app.kvoDB());
        env.Run(insert);
        EXPECT_TRUE(committed.Commit());
        EXPECT_FALSE(committed.Commit()) << "the transaction has ended";
    }
    EXPECT_EQ(env.Value(count), "1");
}

TEST(SQLiteDatabase, WaitsOnceForALockedFile) {
    const TestEnvironment env(TestEnvironment::Storage::File);
    SQLiteDatabase other;
    App::UseFile(other, env.app.DefaultDatabaseFile());
    other.SetLockTimeout(100ms);
    ASSERT_TRUE(other.Connect());
    env.Run("BEGIN EXCLUSIVE");
    QElapsedTimer timer;
    timer.start();
    other.SQLExecute("DELETE FROM cash_book");
    EXPECT_GE(timer.elapsed(), 100);
    for (int i = 0; i < 50; ++i) {
        other.SQLExecute("DELETE FROM cash_book");
        EXPECT_EQ(other.ErrorMessage(), "database is locked");
    }
    EXPECT_LT(timer.elapsed(), 2500) << "only the first statement waits";
}
