#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <chrono>
#include <memory>

struct sqlite3;

/// A SQLCipher database connection and the result of the last operation on it. Shared by the
/// database object and all statements and record sets created from it; closed with the last of
/// them.
///
/// If another program has locked the file, an operation waits up to the lock timeout. After a
/// timeout, no operation waits during a further period of that length: one command runs many
/// statements, and the user must not wait for each of them.
class Connection {
public:
    /// Opens an existing regular file with the key, or an in-memory database without a key if the
    /// path is empty. Sets Error if the file can't be opened or its first page can't be read with
    /// the key.
    Connection(const QString &path, const QByteArray &key, std::chrono::milliseconds lockTimeout);
    Q_DISABLE_COPY_MOVE(Connection)

    bool IsOpen() const { return open_; }
    sqlite3 *Handle() const { return handle_.get(); }

    /// Runs one statement or a script, up to the first failing statement. Returns false on failure.
    [[nodiscard]] bool Execute(const QByteArray &sql);
    qint64 LastRowID() const;
    /// Returns the number of rows changed by the last INSERT, UPDATE or DELETE.
    int Changes() const;

    /// Records the result code of a SQLite call. Returns whether the code means success.
    [[nodiscard]] bool SetResult(int resultCode);
    /// Records a result that does not come from SQLite; a null text means success.
    void SetError(const QString &message) { message_ = message; }
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
    bool open_ = false; // Declared last: its initializer calls Open(), which sets other members.
};
