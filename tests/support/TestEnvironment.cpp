#include "support/TestEnvironment.h"

#include "core/Scripts.h"

#include <QProcess>

TestEnvironment::TestEnvironment(Storage storage)
    : app(desktop, UserLocale(QLocale(QLocale::German, QLocale::Germany))) {
    SQLiteDatabase &database = app.NewDatabase();
    if (storage == Storage::File) {
        const FolderItem file = app.DefaultDatabaseFile();
        EXPECT_TRUE(file.Parent().CreateAsFolder());
        database.SetDatabaseFile(file);
        database.SetEncryptionKey(fixedKey);
    }
    EXPECT_TRUE(database.CreateDatabaseFile()) << database.ErrorMessage();
    Run("BEGIN TRANSACTION");
    Run(CashBookDDL());
    Run(ReferenceDataSQL());
    Run(ChartSKR03SQL());
    Run("INSERT INTO core_company (id, company, account_frame) VALUES ('1', 'Muster', 'SKR-03')");
    Run("INSERT INTO cash_book (id, name, account, opening_balance, opening_balance_date) "
        "VALUES ('1', 'Kasse', '1000', '100.00', '2026-01-01')");
    Run("COMMIT");
}

void TestEnvironment::Add(const Booking &booking) const {
    Run(u"INSERT INTO cash_journal (vdate, type, amount, tax, category, salesnumber, note, "
        "cashbookID, account) VALUES ('%1', '%2', '%3', '%4', '%5', '%6', '%7', '%8', '%9')"_s.arg(
            booking.date, booking.type, booking.amount, booking.tax, booking.category,
            booking.number, booking.note, booking.cashbook, booking.account));
}

void TestEnvironment::Run(const QString &sql) const {
    app.kvoDB().SQLExecute(sql);
    EXPECT_FALSE(app.kvoDB().Error()) << app.kvoDB().ErrorMessage();
}

QString TestEnvironment::Value(const QString &sql) const {
    const auto records = app.kvoDB().SQLSelect(sql);
    EXPECT_TRUE(records) << app.kvoDB().ErrorMessage();
    return records ? records->IdxField(1).StringValue() : QString();
}

QString ReadWithShell(const App &app, const QString &sql) {
    QProcess shell;
    shell.start("sqlcipher", {app.DefaultDatabaseFile().Path()});
    shell.write("PRAGMA key = '" + fixedKey + "';\nPRAGMA cipher_compatibility = 3;\n");
    shell.write(sql.toUtf8() + ";\n");
    shell.closeWriteChannel();
    EXPECT_TRUE(shell.waitForFinished());
    // Newer shells print "ok" for the key.
    const QString output = QString::fromUtf8(shell.readAllStandardOutput());
    return (output.startsWith("ok\n") ? output.mid(3) : output).trimmed();
}
