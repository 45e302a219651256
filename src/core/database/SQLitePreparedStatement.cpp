#include "core/database/SQLitePreparedStatement.h"

SQLitePreparedStatement::SQLitePreparedStatement(std::unique_ptr<Statement> statement)
    : statement_(statement && statement->IsValid() ? std::move(statement) : nullptr) {}

void SQLitePreparedStatement::Bind(int parameter, const QString &text) {
    if (statement_ && !statement_->Bind(parameter, text)) {
        statement_.reset();
    }
}

void SQLitePreparedStatement::SQLExecute() {
    if (statement_) {
        // A result row is ignored; a failure sets the database's Error.
        static_cast<void>(statement_->Step());
        statement_.reset();
    }
}

std::unique_ptr<RecordSet> SQLitePreparedStatement::SQLSelect() {
    if (!statement_) {
        return nullptr;
    }
    const bool hasRow = statement_->Step();
    if (statement_->GetConnection()->Error()) {
        statement_.reset();
        return nullptr;
    }
    return std::make_unique<RecordSet>(std::move(statement_), hasRow);
}
