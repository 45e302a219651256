#pragma once

#include <QString>

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

/// A book in the hands of the C library alone, opened as the program opens it.
class BareBook {
public:
    explicit BareBook(const QString &path);

    /// Runs a statement that gives no rows.
    void Run(const char *sql);
    /// Steps a statement to its end and reads these columns of every row as texts, and these as
    /// numbers.
    void Step(const std::string &sql, const std::vector<int> &texts,
              const std::vector<int> &numbers = {});

private:
    struct Closer {
        void operator()(sqlite3 *handle) const;
    };
    std::unique_ptr<sqlite3, Closer> handle_;
};

/// The two statements behind the journal of the year 2026, or of one month of it, both stepped.
void StepJournal(BareBook &env, const std::string &month = {});
/// Their texts: the bookings of the period, and all that lie before it.
std::string BookingsOf(const std::string &month);
std::string BookingsBefore(const std::string &month);
