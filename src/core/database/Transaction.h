#pragma once

#include <QtGlobal>

class SQLiteDatabase;

/// Transaction guard for an open database: the constructor begins the transaction, the destructor
/// rolls it back unless it was committed. Every operation sets the database's Error, including the
/// rollback.
class [[nodiscard]] Transaction {
public:
    explicit Transaction(SQLiteDatabase &database);
    Q_DISABLE_COPY_MOVE(Transaction)
    ~Transaction();

    /// Makes the changes permanent. Returns false on failure, for example on a full disk; the
    /// destructor then rolls the changes back.
    [[nodiscard]] bool Commit();

private:
    SQLiteDatabase &database_;
    bool isCommitted_ = false;
};
