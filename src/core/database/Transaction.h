#pragma once

class SQLiteDatabase;

/// A transaction on an open database: begins with the object, and is rolled back with it unless it
/// was committed. Every outcome stands in the database's Error, also that of the rollback.
class [[nodiscard]] Transaction {
public:
    explicit Transaction(SQLiteDatabase &database);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    ~Transaction();

    /// Makes the changes permanent. Returns false on failure, as on a full disk; the changes are
    /// then rolled back with the object.
    [[nodiscard]] bool Commit();

private:
    SQLiteDatabase &database_;
    bool isCommitted_ = false;
};
