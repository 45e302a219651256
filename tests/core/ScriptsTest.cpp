#include "core/Scripts.h"

#include "support/TestEnvironment.h"

#include <QCryptographicHash>

TEST(Scripts, MakeTheTablesOfTheFileFormatAndEveryRowThatTheyStartWith) {
    struct Case {
        QString statement;
        QByteArray sum;
    };
    // The beginnings of the sums that sha256sum gives for what the shell prints, or for the rows of the published
    // tables written like that.
    const QString accounts = u"SELECT * FROM cash_accounts"_s;
    const Case cases[] = {{u"SELECT sql FROM sqlite_master WHERE name LIKE 'c%' ORDER BY rowid"_s, "4672ff3be92555aa"},
                          {u"SELECT * FROM cash_accounts_frame"_s, "25e08d11ea944df1"},
                          {u"SELECT * FROM cash_accounts_groups"_s, "aef3b70bba329317"},
                          {u"SELECT * FROM cash_tax"_s, "1b554d12f7705e3a"},
                          {accounts, "bbf8e05fa3e5d518"}};
    const auto sumOf = [](const QString &text) {
        return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    };
    const TestEnvironment env(TestEnvironment::Storage::File);
    for (const Case &each : cases) {
        const QString shown = ReadWithShell(env.app, each.statement);
        EXPECT_EQ(sumOf(shown), each.sum) << qPrintable(shown);
    }
    env.Run(u"DELETE FROM cash_accounts"_s);
    env.Run(ChartSKR04SQL());
    EXPECT_EQ(sumOf(ReadWithShell(env.app, accounts)), "67f5180e34b07b11");
}
