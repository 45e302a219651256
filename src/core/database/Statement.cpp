#include "core/database/Statement.h"

#include <QStringDecoder>
#include <sqlite3.h>

void Statement::Finalizer::operator()(sqlite3_stmt *handle) const {
    // Returns the error of the last step again, which has been recorded already.
    sqlite3_finalize(handle);
}

Statement::Statement(std::shared_ptr<Connection> connection, const QString &sql)
    : connection_(std::move(connection)) {
    const QByteArray text = sql.toUtf8();
    sqlite3_stmt *handle = nullptr;
    // On failure the handle is null, see IsValid().
    static_cast<void>(connection_->SetResult(sqlite3_prepare_v2(
        connection_->Handle(), text.constData(), static_cast<int>(text.size()), &handle, nullptr)));
    handle_.reset(handle);
}

bool Statement::Bind(int parameter, const QString &text) {
    const QByteArray bytes = text.toUtf8();
    return connection_->SetResult(sqlite3_bind_text(handle_.get(), parameter + 1, bytes.constData(),
                                                    static_cast<int>(bytes.size()),
                                                    SQLITE_TRANSIENT));
}

bool Statement::Step() {
    const int result = sqlite3_step(handle_.get());
    return connection_->SetResult(result) && result == SQLITE_ROW;
}

void Statement::Reset() {
    // Returns the error of the last step again, which has been recorded already.
    sqlite3_reset(handle_.get());
}

int Statement::ColumnCount() const {
    return sqlite3_column_count(handle_.get());
}

QByteArray Statement::ColumnName(int column) const {
    return sqlite3_column_name(handle_.get(), column);
}

bool Statement::IsBoolean(int column) const {
    return qstricmp(sqlite3_column_decltype(handle_.get(), column), "boolean") == 0;
}

QByteArray Statement::TableName(int column) const {
    return sqlite3_column_table_name(handle_.get(), column);
}

bool Statement::IsNull(int column) const {
    return sqlite3_column_type(handle_.get(), column) == SQLITE_NULL;
}

bool Statement::IsText(int column) const {
    const int type = sqlite3_column_type(handle_.get(), column);
    return type == SQLITE_TEXT || type == SQLITE_BLOB;
}

QString Statement::Text(int column) const {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(handle_.get(), column));
    const QByteArrayView bytes(text, sqlite3_column_bytes(handle_.get(), column));
    // A leading byte order mark (EF BB BF) is part of the text; fromUtf8() would drop it.
    return bytes.startsWith('\xEF') ? QStringDecoder(QStringDecoder::Utf8,
                                                     QStringDecoder::Flag::ConvertInitialBom)(bytes)
                                    : QString::fromUtf8(bytes);
}

char Statement::UpperCaseCharacter(int column) const {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(handle_.get(), column));
    if (text == nullptr || text[0] == '\0' || text[1] != '\0') {
        return '\0';
    }
    return text[0] >= 'a' && text[0] <= 'z' ? static_cast<char>(text[0] - 'a' + 'A') : text[0];
}

double Statement::Number(int column) const {
    return sqlite3_column_double(handle_.get(), column);
}
