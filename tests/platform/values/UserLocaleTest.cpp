#include "platform/values/UserLocale.h"

#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QProcess>

TEST(UserLocale, RoundsTheShortestTextHalfAwayFromZero) {
    struct Case {
        double value;
        QString amount;
    };
    const Case cases[] = {{0, "0,00"},        {-0.5, "-0,50"},
                          {-0.004, "0,00"},   {-0.005, "-0,01"},
                          {1.005, "1,01"},    {999.995, "1000,00"},
                          {0.995, "1,00"},    {1234567.891, "1234567,89"},
                          {5e-324, "0,00"},   {9.999, "10,00"},
                          {12, "12,00"},      {qInf(), "0,00"},
                          {-qQNaN(), "0,00"}, {99999999999999.98, "99999999999999,98"}};
    const UserLocale german(QLocale(QLocale::German, QLocale::Germany));
    for (const Case &each : cases) {
        EXPECT_EQ(german.FormatAmount(each.value), each.amount);
    }
    EXPECT_EQ(german.FormatBalance(0) + german.FormatBalance(-0.5), ",00-,50");
    EXPECT_EQ(german.FormatBalance(-1.005) + german.FormatBalance(10), "-1,0110,00");
}

TEST(UserLocale, IsGermanWhateverTheEnvironmentSets) {
    struct Case {
        QStringList environment;
        QString shown;
    };
    const QString german = "-1234,50 20.01.2026 Dienstag, 20. Januar 2026";
    const QString austrian = "-1234,50 20.01.2026 Dienstag, 20. Jänner 2026";
    const QString swiss = "-1234.50 20.01.2026 Dienstag, 20. Januar 2026";
    const Case cases[] = {
        {.environment = {"LANG=de_DE.UTF-8", "LC_TIME=en_US.UTF-8"}, .shown = german},
        {.environment = {"LANG=de_DE.UTF-8", "LC_TIME=C"}, .shown = german},
        {.environment = {"LANG=de_DE.UTF-8", "LC_NUMERIC=ar_EG.UTF-8"}, .shown = german},
        {.environment = {"LANG=de_AT.UTF-8", "LC_NUMERIC=en_US.UTF-8"}, .shown = austrian},
        {.environment = {"LANG=de_CH.UTF-8", "LC_TIME=fr_CH.UTF-8"}, .shown = swiss},
        {.environment = {"LANG=en_US.UTF-8", "LC_NUMERIC=de_CH.UTF-8"}, .shown = german},
    };
    for (const Case &each : cases) {
        QProcess process;
        process.setEnvironment(each.environment);
        process.start(QCoreApplication::applicationDirPath() + "/print_formats", {});
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0);
        EXPECT_EQ(QString::fromUtf8(process.readAllStandardOutput()), each.shown);
    }
}
