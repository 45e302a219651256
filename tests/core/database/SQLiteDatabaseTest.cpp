#include "support/Book.h"

#include <QDir>

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

QByteArray Bytes(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// What Connect answers on a file; a refusal comes with a message.
bool Connects(const QString &path, const QByteArray &key) {
    SQLiteDatabase database;
    database.SetDatabaseFile(FolderItem(path));
    database.SetEncryptionKey(key);
    const bool connected = database.Connect();
    EXPECT_EQ(database.ErrorMessage().isEmpty(), connected);
    return connected;
}

TEST(SQLiteDatabase, WritesNoPlainText) {
    Book book(Book::Place::File);
    const QByteArray bytes = Bytes(book.app.DefaultDatabaseFile().Path());
    EXPECT_FALSE(bytes.contains("SQLite format") || bytes.contains("Kasse"));
}

TEST(SQLiteDatabase, LeavesAFileThatItCannotReadAsItIs) {
    Book book(Book::Place::File);
    const QByteArray keyed = Bytes(book.app.DefaultDatabaseFile().Path());
    const QByteArray text = QByteArray("Kein Kassenbuch. ").repeated(200);
    const std::tuple<QByteArray, QByteArray, bool> cases[] = {
        {keyed, fixedKey, true}, {"", fixedKey, true}, {text, fixedKey, false},
        {text, "", false},       {keyed, "rk", false}, {keyed, "", false}};
    const QDir folder(book.desktop.Path(u"files"_s));
    ASSERT_TRUE(folder.mkpath(u"."_s));
    EXPECT_FALSE(Connects(folder.filePath(u"nichts"_s), fixedKey));
    for (const auto &[content, key, opens] : cases) {
        QFile file(folder.filePath(u"Zolmark.sdb"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        EXPECT_EQ(Connects(file.fileName(), key), opens) << key.data() << content.data();
        EXPECT_EQ(Bytes(file.fileName()), content);
        EXPECT_EQ(folder.entryList(QDir::Files).size(), 1);
    }
}

TEST(SQLiteDatabase, WaitsOnceForALockedFile) {
    Book book(Book::Place::File);
    SQLiteDatabase other;
    App::UseFile(other, book.app.DefaultDatabaseFile());
    ASSERT_TRUE(other.Connect());
    other.SQLExecute(u"BEGIN EXCLUSIVE"_s);
    book.app.kvoDB().SQLExecute(u"DELETE FROM cash_book"_s);
    // Another wait would outlast the lock.
    const std::jthread release([&other] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        other.Commit();
    });
    book.app.kvoDB().SQLExecute(u"DELETE FROM cash_book"_s);
    EXPECT_EQ(book.app.kvoDB().ErrorMessage(), u"database is locked"_s);
}

} // namespace
