#pragma once

#include "core/database/RecordSet.h"
#include "core/database/Statement.h"

#include <QString>

#include <memory>

/// A statement with ? parameters, all bound as text. Can be executed once.
class SQLitePreparedStatement {
public:
    /// The statement is null if the database is not open. If it is null or could not be compiled,
    /// every operation fails.
    explicit SQLitePreparedStatement(std::unique_ptr<Statement> statement);

    /// Binds a parameter, counted from 0.
    void Bind(int parameter, const QString &text);
    void SQLExecute();
    /// Returns null on failure.
    [[nodiscard]] std::unique_ptr<RecordSet> SQLSelect();

private:
    std::unique_ptr<Statement> statement_;
};
