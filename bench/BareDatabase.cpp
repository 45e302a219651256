#include "BareDatabase.h"

#include "support/TestEnvironment.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <benchmark/benchmark.h>

void BareDatabase::Closer::operator()(sqlite3 *handle) const {
    sqlite3_close_v2(handle);
}

BareDatabase::BareDatabase(const QString &path) {
    sqlite3 *handle = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                    nullptr);
    handle_.reset(handle);
    sqlite3_key(handle, fixedKey.constData(), static_cast<int>(fixedKey.size()));
    for (const char *pragma : {"PRAGMA cipher_compatibility = 3", "PRAGMA cache_size = -65536",
                               "PRAGMA temp_store = MEMORY", "PRAGMA synchronous = EXTRA"}) {
        Run(pragma);
    }
    Run("SELECT count(*) FROM sqlite_master");
}

void BareDatabase::Run(const char *sql) {
    if (sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        qFatal("%s", sqlite3_errmsg(handle_.get()));
    }
}

void BareDatabase::Step(const std::string &sql, const std::vector<int> &texts,
                        const std::vector<int> &numbers) {
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(handle_.get(), sql.data(), static_cast<int>(sql.size()), &statement,
                       nullptr);
    int result = sqlite3_step(statement);
    for (; result == SQLITE_ROW; result = sqlite3_step(statement)) {
        for (const int column : texts) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
        }
        for (const int column : numbers) {
            benchmark::DoNotOptimize(sqlite3_column_double(statement, column));
        }
    }
    if (result != SQLITE_DONE) {
        qFatal("%s", sqlite3_errmsg(handle_.get()));
    }
    sqlite3_finalize(statement);
}

const char *const bookingsOfYear =
    "SELECT DISTINCT cj.*, ct.name AS taxname FROM cash_journal As cj JOIN cash_tax AS ct "
    "ON cj.tax = ct.value WHERE cashbookID = '1' AND substr(vdate,1,4) = '2026' ORDER BY vdate";
const char *const bookingsBefore =
    "SELECT * FROM cash_journal WHERE vdate  < '2026-01-01' AND cashbookID = '1'";

void StepJournal(BareDatabase &database) {
    // The columns of cash_journal in the order of the table, then the name of the tax.
    database.Step(bookingsOfYear, {0, 1, 2, 6, 7, 8, 9, 12, 13}, {5});
    database.Step(bookingsBefore, {2}, {5});
}
