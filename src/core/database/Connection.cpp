#include "core/database/Connection.h"

#include "core/database/DeriveKey.h"

#define SQLITE_HAS_CODEC 1
#include <QFileInfo>
#include <QThread>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int lockPollMs = 20;

QString LastErrorMessage(sqlite3 *handle) {
    // SQLite writes only to the file that it has opened: "attempt to write a readonly database".
    if (sqlite3_extended_errcode(handle) == SQLITE_READONLY_DBMOVED) {
        return u"Die Datei des Kassenbuchs wurde ersetzt, verschoben oder gelöscht. Die letzte "
               "Eingabe ist nicht gespeichert. Bitte beenden Sie Zolmark und starten Sie es neu."_s;
    }
    return QString::fromUtf8(sqlite3_errmsg(handle));
}

} // namespace

void Connection::Closer::operator()(sqlite3 *handle) const {
    // Closes only after the last statement is finalized; there is no other failure.
    sqlite3_close_v2(handle);
}

Connection::Connection(const QString &path, const QByteArray &key,
                       std::chrono::milliseconds lockTimeout)
    : lockTimeout_(lockTimeout), open_(Open(path, key)) {}

bool Connection::Open(const QString &path, const QByteArray &key) {
    const bool inMemory = path.isEmpty();
    // Opening a named pipe would block until its other end is opened.
    if (!inMemory && !QFileInfo(path).isFile()) {
        SetError(QString::fromUtf8(sqlite3_errstr(SQLITE_CANTOPEN)));
        return false;
    }
    QByteArray derivedKey = inMemory || key.isEmpty() ? QByteArray() : DeriveKey(key, path);
    // The program has one thread, so no mutex is needed for each access to a column.
    const int flags =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (inMemory ? SQLITE_OPEN_CREATE : 0);
    const QByteArray name = inMemory ? QByteArrayLiteral(":memory:") : path.toUtf8();
    sqlite3 *handle = nullptr;
    const int result = sqlite3_open_v2(name.constData(), &handle, flags, nullptr);
    handle_.reset(handle);
    // If no key could be derived, the text key is used: SQLCipher then reports the error.
    const bool open = SetResult(result) &&
                      SetResult(sqlite3_busy_handler(handle, &WaitForLock, this)) &&
                      ApplyKey(derivedKey.isEmpty() ? key : derivedKey) && Configure();
    derivedKey.fill('\0');
    return open;
}

bool Connection::ApplyKey(const QByteArray &key) {
    if (key.isEmpty()) {
        return true;
    }
    // The file format is fixed to that of SQLCipher 3, which all later versions can read and write.
    return SetResult(sqlite3_key(Handle(), key.constData(), static_cast<int>(key.size()))) &&
           Execute("PRAGMA cipher_compatibility = 3");
}

bool Connection::Configure() {
    // The cache is 64 MiB because decrypting a page is expensive. Temporary files would contain
    // plain text, so they are kept in memory. EXTRA also syncs the folder after a commit: if power
    // fails and the deleted rollback journal is still there, the next start undoes the booking. The
    // SELECT reads the first page and so verifies the key.
    return Execute("PRAGMA cache_size = -65536") && Execute("PRAGMA temp_store = MEMORY") &&
           Execute("PRAGMA synchronous = EXTRA") && Execute("SELECT count(*) FROM sqlite_master");
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
    message_ = isSuccess ? QString() : LastErrorMessage(Handle());
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
