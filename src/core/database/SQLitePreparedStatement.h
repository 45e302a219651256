#pragma once

#include "core/database/RecordSet.h"
#include "core/database/Statement.h"

#include <QString>

#include <memory>

/// A statement with ? parameters, all bound as text. Can be executed once.
class SQLitePreparedStatement {
public:
    /// `statement` is null if it could not be compiled: every operation then fails, and the
    /// database's ErrorMessage is the reason.
    explicit SQLitePreparedStatement(std::unique_ptr<Statement> statement);

    /// Binds a parameter, counted from 0.
    void Bind(int parameter, const QString &text);
    void SQLExecute();
    /// Returns null on failure.
    [[nodiscard]] std::unique_ptr<RecordSet> SQLSelect();

private:
    std::unique_ptr<Statement> statement_;
};
