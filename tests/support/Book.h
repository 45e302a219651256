#pragma once

#include "core/App.h"
#include "support/FakeDesktop.h"
#include "support/GoogleTest.h"

#include <QString>

/// A booking to put into a book; the amount and the date as the database stores them, and no
/// apostrophe in its texts.
struct Booking {
    QString date;
    QString type;
    QString amount;
    QString tax = QStringLiteral("3");
    QString category = QStringLiteral("Erlöse 19% USt");
    QString cashbook = QStringLiteral("1");
    QString account = QStringLiteral("8400");
    QString number = {};
    QString note = {};
};

/// An application on an open book: schema, reference data and the chart SKR-03, one company, and
/// one cash book, 1000:Kasse, that opens with 100.00 on 2026-01-01.
class Book {
public:
    /// In memory, or in the default file of the desktop.
    enum class Place { Memory, File };
    explicit Book(Place place = Place::Memory);

    FakeDesktop desktop;
    App app;

    void Add(const Booking &booking) const;
    /// Runs a statement, which must not fail.
    void Run(const QString &sql) const;
    /// While a table is hidden, every statement on it fails.
    void Hide(const QString &table, bool hidden = true) const {
        const QString other = QStringLiteral("hidden_") + table;
        Run(QStringLiteral("ALTER TABLE %1 RENAME TO %2")
                .arg(hidden ? table : other, hidden ? other : table));
    }
    /// The first column of the first row, as text.
    QString Value(const QString &sql) const;
};

/// The key of every book.
inline const QByteArray fixedKey("rk7WPNdTLqhvM4");

/// What the standard sqlcipher shell prints for a statement on the default file, without the line
/// break at its end.
QString ReadWithShell(const App &app, const QString &sql);
