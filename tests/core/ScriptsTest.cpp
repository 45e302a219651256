#include "core/Scripts.h"

#include "support/TestEnvironment.h"

#include <QCryptographicHash>

TEST(Scripts, CreateTheSchemaAndTheInitialRows) {
    struct Case {
        QString statement;
        QByteArray hash;
    };
    // The first 16 digits of the SHA-256 hash of the shell's output, or of the published tables in
    // the same format.
    const QString accounts = "SELECT * FROM cash_accounts";
    const Case cases[] = {
        {"SELECT sql FROM sqlite_master WHERE name LIKE 'c%' ORDER BY rowid", "4672ff3be92555aa"},
        {"SELECT * FROM cash_accounts_frame", "25e08d11ea944df1"},
        {"SELECT * FROM cash_accounts_groups", "aef3b70bba329317"},
        {"SELECT * FROM cash_tax", "1b554d12f7705e3a"},
        {accounts, "bbf8e05fa3e5d518"}};
    const auto hashOf = [](const QString &text) {
        return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    };
    const TestEnvironment env(TestEnvironment::Storage::File);
    for (const Case &each : cases) {
        const QString shown = ReadWithShell(env.app, each.statement);
        EXPECT_EQ(hashOf(shown), each.hash) << shown;
    }
    env.Run("DELETE FROM cash_accounts");
    env.Run(ChartSKR04SQL());
    EXPECT_EQ(hashOf(ReadWithShell(env.app, accounts)), "67f5180e34b07b11");
}
