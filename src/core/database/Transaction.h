#pragma once

#include "core/database/SQLiteDatabase.h"

/// Transaction guard for an open database: the constructor begins the transaction, the destructor
/// rolls it back unless it was committed. Every operation sets the database's Error, including the
/// rollback.
class [[nodiscard]] Transaction {
public:
    explicit Transaction(SQLiteDatabase &database) : database_(database) {
        database_.SQLExecute(QStringLiteral("BEGIN TRANSACTION"));
    }
    Q_DISABLE_COPY_MOVE(Transaction)
    ~Transaction() {
        if (!isCommitted_) {
            database_.Rollback();
        }
    }

    /// Makes the changes permanent. Returns false on failure, for example on a full disk; the
    /// destructor then rolls the changes back.
    [[nodiscard]] bool Commit() {
        database_.Commit();
        isCommitted_ = !database_.Error();
        return isCommitted_;
    }

private:
    SQLiteDatabase &database_;
    bool isCommitted_ = false;
};
