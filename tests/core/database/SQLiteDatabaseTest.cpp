#include "core/database/DeriveKey.h"
#include "core/database/Transaction.h"
#include "support/TestEnvironment.h"

#include <QElapsedTimer>
#include <QFile>

#include <sys/stat.h>

/// An encrypted file that another connection uses too, as another program does.
class FileTest : public testing::Test {
protected:
    FileTest() {
        App::UseFile(other, file);
        other.SetLockTimeout(std::chrono::milliseconds(100));
        EXPECT_TRUE(other.Connect());
    }

    /// Writes with the other connection and returns the error message.
    QString Write() {
        other.SQLExecute("DELETE FROM cash_book");
        return other.ErrorMessage();
    }

    TestEnvironment env{TestEnvironment::Storage::File};
    const FolderItem file = env.app.DefaultDatabaseFile();
    SQLiteDatabase other;
};

TEST_F(FileTest, IsEncryptedWithARandomSalt) {
    QFile bytes(file.Path());
    ASSERT_TRUE(bytes.open(QIODevice::ReadOnly));
    EXPECT_NE(bytes.read(16), QByteArray(16, '\0'));
    EXPECT_EQ(DeriveKey(fixedKey, file.Path()).size(), 99); // x'...' with 96 digits
    EXPECT_EQ(env.Value("PRAGMA temp_store"), "2") << "temporary files are not encrypted";
    EXPECT_EQ(env.Value("PRAGMA synchronous"), "3") << "a booking must survive a power failure";
    other.SetEncryptionKey("rk");
    EXPECT_FALSE(other.Connect());
}

TEST_F(FileTest, IsWaitedForOnceWhileItIsLocked) {
    env.Run("BEGIN EXCLUSIVE");
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Write(), "database is locked");
    EXPECT_GE(timer.elapsed(), 100);
    for (int i = 0; i < 50; ++i) {
        Write();
    }
    EXPECT_LT(timer.elapsed(), 2500) << "only the first statement waits";
    env.app.NewDatabase(); // Closes the connection with the lock.
    EXPECT_EQ(Write(), "");
}

TEST_F(FileTest, IsNotWrittenAfterItWasReplaced) {
    ASSERT_TRUE(QFile::copy(file.Path(), env.desktop.Path("newer")));
    ASSERT_TRUE(QFile::remove(file.Path()));
    ASSERT_TRUE(QFile::rename(env.desktop.Path("newer"), file.Path()));
    EXPECT_TRUE(Write().startsWith("Die Datei des Kassenbuchs wurde ersetzt")) << Write();
    EXPECT_TRUE(other.Connect());
    EXPECT_EQ(Write(), "");
}

TEST_F(FileTest, IsUnlockedByQueriesThatEndEarly) {
    SQLiteDatabase &database = env.app.kvoDB();
    const QString query = "SELECT * FROM cash_tax";
    EXPECT_FALSE(database.SQLSelect(query)->AtEnd());
    EXPECT_EQ(Write(), "");
    auto executed = database.Prepare(query);
    executed.SQLExecute();
    EXPECT_EQ(Write(), "");
    const auto updated = database.SQLSelect(query);
    updated->Field("name"_L1).SetStringValue("neu");
    updated->Update();
    EXPECT_EQ(Write(), "");
}

TEST(SQLiteDatabase, FailsWhileItIsNotOpen) {
    const FakeDesktop desktop;
    const FolderItem pipe(desktop.Path("pipe"));
    ASSERT_EQ(mkfifo(qUtf8Printable(pipe.Path()), 0600), 0);
    SQLiteDatabase database;
    EXPECT_EQ(database.ErrorMessage(), "Es ist keine Datenbank geöffnet.");
    database.SQLExecute("SELECT 1");
    EXPECT_FALSE(database.SQLSelect("SELECT 1"));
    EXPECT_EQ(database.LastRowID(), 0);
    EXPECT_TRUE(database.Error());
    database.SetDatabaseFile(pipe);
    EXPECT_FALSE(database.Connect());
    EXPECT_EQ(database.ErrorMessage(), "unable to open database file");
}

TEST(Transaction, RollsBackUnlessCommitted) {
    const TestEnvironment env;
    {
        const Transaction rolledBack(env.app.kvoDB());
        env.Run("UPDATE cash_book SET id = 2");
    }
    Transaction committed(env.app.kvoDB());
    env.Run("UPDATE cash_book SET id = id + 2");
    EXPECT_TRUE(committed.Commit());
    EXPECT_EQ(env.Value("SELECT id FROM cash_book"), "3");
    EXPECT_FALSE(committed.Commit());
}
