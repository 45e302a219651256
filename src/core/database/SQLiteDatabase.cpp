#include "core/database/SQLiteDatabase.h"

#include "core/database/Connection.h"

#include <QFile>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Creates an empty file with permissions for its owner only; SQLite would create it readable for
/// all users.
void CreateOwnerOnlyFile(const QString &path) {
    const auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
    QFile file(path);
    // Failure is ignored: SQLite then fails to open the file and sets a more specific message.
    static_cast<void>(file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly) &&
                      file.setPermissions(ownerOnly));
}

} // namespace

SQLiteDatabase::SQLiteDatabase() = default;
SQLiteDatabase::~SQLiteDatabase() = default;

bool SQLiteDatabase::CreateDatabaseFile() {
    if (file_ && !file_->Exists()) {
        CreateOwnerOnlyFile(file_->Path());
    }
    return Connect();
}

bool SQLiteDatabase::Connect() {
    connection_ =
        std::make_shared<Connection>(file_ ? file_->Path() : QString(), key_, lockTimeout_);
    return connection_->IsOpen();
}

void SQLiteDatabase::SQLExecute(const QString &sql) {
    if (connection_ && connection_->IsOpen()) {
        // The connection records the result.
        static_cast<void>(connection_->Execute(sql.toUtf8()));
    }
}

SQLitePreparedStatement SQLiteDatabase::Prepare(const QString &sql) {
    std::unique_ptr<Statement> statement;
    if (connection_ && connection_->IsOpen()) {
        statement = std::make_unique<Statement>(connection_, sql);
    }
    return SQLitePreparedStatement(std::move(statement));
}

void SQLiteDatabase::InsertRecord(const QString &table, const DatabaseRecord &record) {
    QStringList names;
    QStringList markers;
    for (const auto &column : record.AllColumns()) {
        names.append(column.first);
        markers.append(u"?"_s);
    }
    SQLitePreparedStatement insert = Prepare(
        u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(table, names.join(u','), markers.join(u',')));
    int parameter = 0;
    for (const auto &column : record.AllColumns()) {
        insert.Bind(parameter++, column.second);
    }
    insert.SQLExecute();
}

qint64 SQLiteDatabase::LastRowID() const {
    return connection_ && connection_->IsOpen() ? connection_->LastRowID() : 0;
}

bool SQLiteDatabase::Error() const {
    return !connection_ || connection_->Error();
}

QString SQLiteDatabase::ErrorMessage() const {
    return connection_ ? connection_->ErrorMessage() : u"Es ist keine Datenbank geöffnet."_s;
}
