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

/// An SQLite database in a keyed file, or in memory when it has no file.
///
/// Every operation leaves its outcome in Error and ErrorMessage. On a database that is not open
/// every operation fails.
class SQLiteDatabase {
public:
    SQLiteDatabase();
    ~SQLiteDatabase();
    SQLiteDatabase(const SQLiteDatabase &) = delete;
    SQLiteDatabase &operator=(const SQLiteDatabase &) = delete;

    void SetDatabaseFile(const FolderItem &file) { file_ = file; }
    /// Nothing for a database in memory.
    std::optional<FolderItem> DatabaseFile() const { return file_; }
    /// The key, set before the file is created or opened. Without one the file is plain.
    void SetEncryptionKey(const QByteArray &key) { key_ = key; }
    /// How long a file that another program holds locked is waited for, 5 s unless told otherwise.
    /// To be set before it is opened.
    void SetLockTimeout(std::chrono::milliseconds lockTimeout) { lockTimeout_ = lockTimeout; }

    /// Creates the file for its owner alone, and opens it. An existing file is opened as it is.
    [[nodiscard]] bool CreateDatabaseFile();
    /// Opens the file, which must exist; true when the key fits and the file can be read. It
    /// creates no file, and changes none but to roll back what a crash has left half-written.
    [[nodiscard]] bool Connect();

    /// Runs a statement, or a script of several up to its first failing one.
    void SQLExecute(const QString &sql);
    /// Nothing on a failure.
    [[nodiscard]] std::unique_ptr<RecordSet> SQLSelect(const QString &sql);
    [[nodiscard]] SQLitePreparedStatement Prepare(const QString &sql);
    void InsertRecord(const QString &table, const DatabaseRecord &record);
    /// End the transaction; Transaction begins one.
    void Commit();
    void Rollback();
    /// The id of the row inserted last.
    qint64 LastRowID() const;

    bool Error() const;
    /// The engine's text for the last operation, empty after a success.
    QString ErrorMessage() const;

private:
    std::unique_ptr<Statement> Compile(const QString &sql);

    std::optional<FolderItem> file_;
    QByteArray key_;
    std::chrono::milliseconds lockTimeout_ = std::chrono::seconds(5);
    /// Null until the first attempt to open.
    std::shared_ptr<Connection> connection_;
};
