#include "core/database/Connection.h"

#include "core/database/DerivedKey.h"

#define SQLITE_HAS_CODEC 1
#include <QFileInfo>
#include <QThread>
#include <sqlite3.h>

namespace {

constexpr int lockPollMs = 20;

} // namespace

void Connection::Closer::operator()(sqlite3 *handle) const {
    // Statements that are still alive keep the handle until they end; nothing else can fail here.
    sqlite3_close_v2(handle);
}

Connection::Connection(const QString &path, const QByteArray &key,
                       std::chrono::milliseconds lockTimeout)
    : lockTimeout_(lockTimeout), open_(Open(path, key)) {}

bool Connection::Open(const QString &path, const QByteArray &key) {
    const bool inMemory = path.isEmpty();
    // Opening a pipe would wait for its other end.
    if (!inMemory && !QFileInfo(path).isFile()) {
        SetError(QString::fromUtf8(sqlite3_errstr(SQLITE_CANTOPEN)));
        return false;
    }
    QByteArray derived = inMemory || key.isEmpty() ? QByteArray() : DerivedKey(key, path);
    // The program has one thread: without a lock around each value of a row.
    const int flags =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (inMemory ? SQLITE_OPEN_CREATE : 0);
    const QByteArray name = inMemory ? QByteArrayLiteral(":memory:") : path.toUtf8();
    sqlite3 *handle = nullptr;
    const int result = sqlite3_open_v2(name.constData(), &handle, flags, nullptr);
    handle_.reset(handle);
    // Without a salt the library says itself what the file lacks.
    const bool open = SetResult(result) &&
                      SetResult(sqlite3_busy_handler(handle, &WaitForLock, this)) &&
                      ApplyKey(derived.isEmpty() ? key : derived) && Configure();
    derived.fill('\0');
    return open;
}

bool Connection::ApplyKey(const QByteArray &key) {
    if (key.isEmpty()) {
        return true;
    }
    // The file format is pinned to that of SQLCipher 3, which every later version can be told to
    // use.
    return SetResult(sqlite3_key(Handle(), key.constData(), static_cast<int>(key.size()))) &&
           Execute("PRAGMA cipher_compatibility = 3");
}

bool Connection::Configure() {
    // A cache of 64 MiB, for decrypted pages are dear; nothing in plain text in a temporary file.
    // The last line is the proof of the key: it reads the first page.
    return Execute("PRAGMA cache_size = -65536") && Execute("PRAGMA temp_store = MEMORY") &&
           Execute("PRAGMA synchronous = FULL") && Execute("SELECT count(*) FROM sqlite_master");
}

bool Connection::Execute(const QByteArray &sql) {
    return SetResult(sqlite3_exec(Handle(), sql.constData(), nullptr, nullptr, nullptr));
}

qint64 Connection::LastRowID() const {
    return sqlite3_last_insert_rowid(Handle());
}

int Connection::Changes() const {
    return sqlite3_changes(Handle());
}

bool Connection::SetResult(int resultCode) {
    const bool isSuccess =
        resultCode == SQLITE_OK || resultCode == SQLITE_ROW || resultCode == SQLITE_DONE;
    message_ = isSuccess ? QString() : QString::fromUtf8(sqlite3_errmsg(Handle()));
    return isSuccess;
}

int Connection::WaitForLock(void *connection, int attempts) {
    auto &self = *static_cast<Connection *>(connection);
    if (!self.noWaitUntil_.hasExpired()) {
        return 0;
    }
    if (attempts == 0) {
        self.lockWait_.setRemainingTime(self.lockTimeout_);
    }
    if (self.lockWait_.hasExpired()) {
        self.noWaitUntil_.setRemainingTime(self.lockTimeout_);
        return 0;
    }
    QThread::msleep(lockPollMs);
    return 1;
}

void Connection::SetError(const QString &message) {
    message_ = message;
}
