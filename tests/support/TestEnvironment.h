#pragma once

#include "core/App.h"
#include "shell/MainWindow.h"
#include "support/FakeDesktop.h"

/// A booking to insert, with amount and date as the database stores them. The texts must not
/// contain apostrophes.
struct Booking {
    QString date = "2026-01-02", type = "E", amount = "1";
    QString tax = "3";
    QString category = "Erlöse 19% USt";
    QString cashbook = "1";
    QString account = "8400";
    QString number = {}, note = {};
};

/// An application with an open database: schema, reference data, the chart SKR-03, one company, and
/// one cash book, 1000:Kasse, with an opening balance of 100.00 on 2026-01-01.
class TestEnvironment {
public:
    enum class Storage { Memory, File };
    explicit TestEnvironment(Storage storage = Storage::Memory);

    FakeDesktop desktop;
    App app;

    void Add(const Booking &booking) const;
    /// Executes a statement, which must not fail.
    void Run(const QString &sql) const;
    /// Renames the tables, so that every statement on them fails.
    void Hide(const QStringList &tables, bool hidden = true) const {
        for (const QString &table : tables) {
            const QString hiddenName = "hidden_" + table;
            Run(u"ALTER TABLE %1 RENAME TO %2"_s.arg(hidden ? table : hiddenName,
                                                     hidden ? hiddenName : table));
        }
    }
    /// Makes a query of the table fail at its row 2, after row 1 was returned, as a damaged page
    /// does.
    void Break(const QString &table) const {
        Hide({table});
        Run(u"CREATE VIEW %1 AS SELECT * FROM hidden_%1 WHERE abs(-9223372036854775806 - id) > 0"_s
                .arg(table));
    }
    /// Restores hidden and broken tables.
    void Show(const QStringList &tables) const {
        for (const QString &table : tables) {
            Run("DROP VIEW IF EXISTS " + table);
        }
        Hide(tables, false);
    }
    /// Returns the first column of the first row.
    QString Value(const QString &sql) const;
};

inline const QByteArray fixedKey("rk7WPNdTLqhvM4");

/// Returns what the standard sqlcipher shell prints for a statement on the default database file,
/// trimmed.
QString ReadWithShell(const App &app, const QString &sql);

/// The main window's logic on a test database, without widgets. A test adds records and calls
/// window.Event_Open().
class EnvironmentTest : public testing::Test {
protected:
    explicit EnvironmentTest(TestEnvironment::Storage storage = TestEnvironment::Storage::Memory)
        : env(storage) {}

    TestEnvironment env;
    MainWindow window{env.app};
    Listbox &bookings = window.journal.CashList;
};
