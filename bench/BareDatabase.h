#pragma once

#include <QString>

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

/// A database file opened by the C library alone, with the settings of the program.
class BareDatabase {
public:
    explicit BareDatabase(const QString &path);

    /// Runs a statement without rows.
    void Run(const char *sql);
    /// Runs a query and reads these columns of every row as texts, and these as numbers.
    void Step(const std::string &sql, const std::vector<int> &texts,
              const std::vector<int> &numbers = {});

private:
    struct Closer {
        void operator()(sqlite3 *handle) const;
    };
    std::unique_ptr<sqlite3, Closer> handle_;
};

/// The two statements of the journal of the year 2026: its bookings, and all before it.
extern const char *const bookingsOfYear;
extern const char *const bookingsBefore;
/// Runs both and reads the columns that the program reads.
void StepJournal(BareDatabase &database);
