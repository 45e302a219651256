#include "core/Scripts.h"

#include "support/TestEnvironment.h"

#include <QCryptographicHash>

TEST(Scripts, CreateTheSchemaAndThePublishedTables) {
    const TestEnvironment env(TestEnvironment::Storage::File);
    // Returns the start of the hash of the shell's output.
    const auto hash = [&env](const QString &sql) {
        const QByteArray output = ReadWithShell(env.app, sql).toUtf8();
        return QCryptographicHash::hash(output, QCryptographicHash::Sha256).toHex().left(16);
    };
    EXPECT_EQ(hash("SELECT sql FROM sqlite_master WHERE name LIKE 'c%'"), "4672ff3be92555aa");
    EXPECT_EQ(hash("SELECT * FROM cash_accounts_frame"), "25e08d11ea944df1");
    EXPECT_EQ(hash("SELECT * FROM cash_accounts_groups"), "aef3b70bba329317");
    EXPECT_EQ(hash("SELECT * FROM cash_tax"), "1b554d12f7705e3a");
    EXPECT_EQ(hash("SELECT * FROM cash_accounts"), "bbf8e05fa3e5d518");
    env.Run("DELETE FROM cash_accounts");
    env.Run(ChartSKR04SQL());
    EXPECT_EQ(hash("SELECT * FROM cash_accounts"), "67f5180e34b07b11");
}
