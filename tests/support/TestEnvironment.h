#pragma once

#include "core/App.h"
#include "shell/MainWindow.h"
#include "support/FakeDesktop.h"

/// A booking to put into a book; the amount and the date as the database stores them, and no apostrophe in its texts.
struct Booking {
    QString date, type, amount;
    QString tax = u"3"_s;
    QString category = u"Erlöse 19% USt"_s;
    QString cashbook = u"1"_s;
    QString account = u"8400"_s;
    QString number = {}, note = {};
};

/// An application on an open book: schema, reference data and the chart SKR-03, one company, and one cash book,
/// 1000:Kasse, that opens with 100.00 on 2026-01-01.
class TestEnvironment {
public:
    enum class Storage { Memory, File };
    explicit TestEnvironment(Storage storage = Storage::Memory);

    FakeDesktop desktop;
    App app;

    void Add(const Booking &booking) const;
    /// Runs a statement, which must not fail.
    void Run(const QString &sql) const;
    /// While tables are hidden, every statement on them fails.
    void Hide(const QStringList &tables, bool hidden = true) const {
        for (const QString &table : tables) {
            const QString other = u"hidden_"_s + table;
            Run(u"ALTER TABLE %1 RENAME TO %2"_s.arg(hidden ? table : other, hidden ? other : table));
        }
    }
    /// As by a damaged page, a broken table gives its row 1 and fails at its row 2.
    void Break(const QString &table) const {
        Hide({table});
        Run(u"CREATE VIEW %1 AS SELECT * FROM hidden_%1 WHERE abs(-9223372036854775806 - id) > 0"_s.arg(table));
    }
    void Show(const QStringList &tables) const {
        for (const QString &table : tables) { Run(u"DROP VIEW IF EXISTS "_s + table); }
        Hide(tables, false);
    }
    QString Value(const QString &sql) const;
};

inline const QByteArray fixedKey("rk7WPNdTLqhvM4");

/// What the standard sqlcipher shell prints for a statement on the default file, without the line break at its end.
QString ReadWithShell(const App &app, const QString &sql);

/// What the main window knows and decides on a book, without a widget. A test fills the book and opens the window.
class EnvironmentTest : public testing::Test {
protected:
    explicit EnvironmentTest(TestEnvironment::Storage storage = TestEnvironment::Storage::Memory) : env(storage) {}

    TestEnvironment env;
    MainWindow window{env.app};
    Listbox &bookings = window.journal.CashList;
};
