#pragma once

#include "core/database/DatabaseRecord.h"
#include "core/database/RecordSet.h"
#include "core/database/SQLitePreparedStatement.h"
#include "platform/outside/FolderItem.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

class Connection;

/// An SQLite database in an encrypted file, or in memory if no file is set.
///
/// Every operation sets Error and ErrorMessage. On a database that is not open, every operation
/// fails.
class SQLiteDatabase {
public:
    SQLiteDatabase();
    ~SQLiteDatabase();
    Q_DISABLE_COPY_MOVE(SQLiteDatabase)

    void SetDatabaseFile(const FolderItem &file) { file_ = file; }
    /// Returns nullopt for an in-memory database.
    std::optional<FolderItem> DatabaseFile() const { return file_; }
    /// Sets the key; call this before the file is created or opened. Without a key the file is not
    /// encrypted.
    void SetEncryptionKey(const QByteArray &key) { key_ = key; }
    /// Sets how long an operation waits for a file that another program has locked; 5 s by default.
    /// Call this before the file is opened.
    void SetLockTimeout(std::chrono::milliseconds lockTimeout) { lockTimeout_ = lockTimeout; }

    /// Creates the file with permissions for its owner only, and opens it. An existing file is
    /// opened unchanged. Returns false on failure.
    [[nodiscard]] bool CreateDatabaseFile();
    /// Opens the file, which must exist. Returns true if the file can be read with the key. Creates
    /// no file, and changes one only to roll back a transaction that a crash left incomplete.
    [[nodiscard]] bool Connect();

    /// Runs one statement or a script, up to the first failing statement.
    void SQLExecute(const QString &sql);
    /// Returns null on failure.
    [[nodiscard]] std::unique_ptr<RecordSet> SQLSelect(const QString &sql) {
        return Prepare(sql).SQLSelect();
    }
    [[nodiscard]] SQLitePreparedStatement Prepare(const QString &sql);
    void InsertRecord(const QString &table, const DatabaseRecord &record);
    /// Commit and Rollback end the current transaction, which Transaction begins.
    void Commit() { SQLExecute(QStringLiteral("COMMIT")); }
    void Rollback() { SQLExecute(QStringLiteral("ROLLBACK")); }
    /// Returns the id of the row inserted last.
    qint64 LastRowID() const;

    bool Error() const;
    /// Returns the error message of the last operation, empty after a success.
    QString ErrorMessage() const;

private:
    std::optional<FolderItem> file_;
    QByteArray key_;
    std::chrono::milliseconds lockTimeout_ = std::chrono::seconds(5);
    /// Null until the first attempt to open the database.
    std::shared_ptr<Connection> connection_;
};
