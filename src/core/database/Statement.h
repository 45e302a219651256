#pragma once

#include "core/database/Connection.h"

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3_stmt;

/// A compiled statement of a connection. The connection records the result of every operation.
class Statement {
public:
    Statement(std::shared_ptr<Connection> connection, const QString &sql);
    Q_DISABLE_COPY_MOVE(Statement)

    /// Returns false if the SQL text could not be compiled.
    bool IsValid() const { return handle_ != nullptr; }
    const std::shared_ptr<Connection> &GetConnection() const { return connection_; }

    /// Binds a parameter, counted from 0, as text. Returns false on failure.
    [[nodiscard]] bool Bind(int parameter, const QString &text);
    /// Returns true if there is a row to read, false at the end and on an error.
    [[nodiscard]] bool Step();
    /// Resets the statement to before the first row; the bound values are retained.
    void Reset();

    int ColumnCount() const;
    QByteArray ColumnName(int column) const;
    /// Returns whether the table declares the column as boolean.
    bool IsBoolean(int column) const;
    /// Returns the table of a column, empty for an expression.
    QByteArray TableName(int column) const;

    bool IsNull(int column) const;
    bool IsText(int column) const;
    QString Text(int column) const;
    /// Returns the character of a text of one byte, in upper case; 0 for any other text.
    char UpperCaseCharacter(int column) const;
    double Number(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt *handle) const;
    };

    std::shared_ptr<Connection> connection_;
    std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};
