#include "platform/values/UserLocale.h"

#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QProcess>

TEST(UserLocale, RoundsTheShortestTextHalfAwayFromZero) {
    const UserLocale german(QLocale("de_DE"));
    EXPECT_EQ(german.FormatAmount(-0.004), "0,00");
    EXPECT_EQ(german.FormatAmount(-0.005), "-0,01");
    EXPECT_EQ(german.FormatAmount(1.005), "1,01");
    EXPECT_EQ(german.FormatAmount(999.995), "1000,00");
    EXPECT_EQ(german.FormatAmount(qInf()), "0,00");
    EXPECT_EQ(german.FormatBalance(0), ",00");
    EXPECT_EQ(german.FormatBalance(-0.5), "-,50");
}

/// Returns an amount and a date as a process with this environment formats them.
static QString Shown(const QStringList &environment) {
    QProcess process;
    process.setEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + "/print_formats", {});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    return process.readAllStandardOutput();
}

TEST(UserLocale, IsGermanWhateverTheEnvironmentSets) {
    const QString german = "-1234,50 20.01.2026 Dienstag, 20. Januar 2026";
    EXPECT_EQ(Shown({"LANG=de_DE", "LC_TIME=en_US"}), german);
    EXPECT_EQ(Shown({"LANG=en_US", "LC_NUMERIC=de_CH"}), german);
    const QString swiss = "-1234.50 20.01.2026 Dienstag, 20. Januar 2026";
    EXPECT_EQ(Shown({"LANG=de_CH", "LC_TIME=fr_CH"}), swiss);
    const QString austrian = "-1234,50 20.01.2026 Dienstag, 20. Jänner 2026";
    EXPECT_EQ(Shown({"LANG=de_AT", "LC_NUMERIC=en_US"}), austrian);
}
