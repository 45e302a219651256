#pragma once

#include "core/database/RecordSet.h"
#include "core/database/Statement.h"

#include <QString>

#include <memory>

/// A statement with ? markers, all bound as text. It serves for one run.
class SQLitePreparedStatement {
public:
    /// Without a statement every operation fails; the database's Error tells why.
    explicit SQLitePreparedStatement(std::unique_ptr<Statement> statement);

    /// Binds a marker, counted from 0.
    void Bind(int parameter, const QString &text);
    void SQLExecute();
    /// Nothing on a failure.
    [[nodiscard]] std::unique_ptr<RecordSet> SQLSelect();

private:
    std::unique_ptr<Statement> statement_;
};
