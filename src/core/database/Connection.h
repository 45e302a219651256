#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <chrono>
#include <memory>

struct sqlite3;

/// An open SQLCipher database and the outcome of the last operation on it. It is shared by the
/// database object and by all statements and record sets that came from it, and closes with the
/// last.
///
/// A file that another program has locked is waited for as long as the patience lasts. After a
/// wait in vain nothing waits for as long again: one command runs many statements, and the user
/// waits but once.
class Connection {
public:
    /// Opens the file, which must exist and be a regular one, with the key; an empty path opens a
    /// database in memory without a key. A file is open when the key fits and its first page could
    /// be read; otherwise Error is set.
    Connection(const QString &path, const QByteArray &key, std::chrono::milliseconds lockTimeout);
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    bool IsOpen() const { return open_; }
    sqlite3 *Handle() const { return handle_.get(); }

    /// Runs one statement or a script, up to its first failing statement.
    [[nodiscard]] bool Execute(const QByteArray &sql);
    qint64 LastRowID() const;
    /// Rows changed by the last INSERT, UPDATE or DELETE.
    int Changes() const;

    /// Keeps the outcome of a call of the library; true for a success.
    [[nodiscard]] bool SetResult(int resultCode);
    /// An outcome that no call of the library gave; a null text is a success.
    void SetError(const QString &message);
    bool Error() const { return !message_.isNull(); }
    QString ErrorMessage() const { return message_; }

private:
    struct Closer {
        void operator()(sqlite3 *handle) const;
    };

    bool Open(const QString &path, const QByteArray &key);
    bool ApplyKey(const QByteArray &key);
    bool Configure();
    static int WaitForLock(void *connection, int attempts);

    std::unique_ptr<sqlite3, Closer> handle_;
    QString message_;
    std::chrono::milliseconds lockTimeout_;
    QDeadlineTimer lockWait_;
    QDeadlineTimer noWaitUntil_;
    bool open_ = false; // After what opening writes to.
};
