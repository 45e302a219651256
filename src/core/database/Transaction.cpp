#include "core/database/Transaction.h"

#include "core/database/SQLiteDatabase.h"

using namespace Qt::StringLiterals;

Transaction::Transaction(SQLiteDatabase &database) : database_(database) {
    database_.SQLExecute(u"BEGIN TRANSACTION"_s);
}

Transaction::~Transaction() {
    if (!isCommitted_) {
        database_.Rollback();
    }
}

bool Transaction::Commit() {
    database_.Commit();
    isCommitted_ = !database_.Error();
    return isCommitted_;
}
