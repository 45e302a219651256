#pragma once

#include "core/database/Connection.h"

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3_stmt;

/// One compiled statement of a connection. Every outcome goes to the connection.
class Statement {
public:
    Statement(std::shared_ptr<Connection> connection, const QString &sql);
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    /// False when the text could not be compiled.
    bool IsValid() const { return handle_ != nullptr; }
    const std::shared_ptr<Connection> &Owner() const { return connection_; }

    /// Binds a parameter, from 0, as text.
    [[nodiscard]] bool Bind(int parameter, const QString &text);
    /// True when there is a row to read; false at the end and on an error.
    [[nodiscard]] bool Step();
    /// Back to before the first row; the bound values stay.
    void Reset();

    int ColumnCount() const;
    QByteArray ColumnName(int column) const;
    /// Whether the table declares the column as boolean.
    bool IsBoolean(int column) const;
    /// The table that a column comes from, empty for an expression.
    QByteArray TableName(int column) const;

    enum class Kind { Null, Number, Text };
    Kind ColumnKind(int column) const;
    QString Text(int column) const;
    /// A text of one letter, as a capital; 0 for any other.
    char Character(int column) const;
    double Number(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt *handle) const;
    };

    std::shared_ptr<Connection> connection_;
    std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};
