#include "platform/values/UserLocale.h"

#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QProcess>

TEST(UserLocale, RoundsTheShortestTextHalfAwayFromZero) {
    struct Case {
        double value;
        QString amount;
    };
    const Case cases[] = {{0, u"0,00"_s},        {-0.5, u"-0,50"_s},
                          {-0.004, u"0,00"_s},   {-0.005, u"-0,01"_s},
                          {1.005, u"1,01"_s},    {999.995, u"1000,00"_s},
                          {0.995, u"1,00"_s},    {1234567.891, u"1234567,89"_s},
                          {5e-324, u"0,00"_s},   {9.999, u"10,00"_s},
                          {12, u"12,00"_s},      {qInf(), u"0,00"_s},
                          {-qQNaN(), u"0,00"_s}, {99999999999999.98, u"99999999999999,98"_s}};
    const UserLocale german(QLocale(QLocale::German, QLocale::Germany));
    for (const Case &each : cases) { EXPECT_EQ(german.FormatAmount(each.value), each.amount); }
    EXPECT_EQ(german.FormatBalance(0) + german.FormatBalance(-0.5), u",00-,50"_s);
    EXPECT_EQ(german.FormatBalance(-1.005) + german.FormatBalance(10), u"-1,0110,00"_s);
}

/// Run by the next test as a program with its own environment.
TEST(UserLocale, DISABLED_PrintsItsFormats) {
    const UserLocale locale(QLocale::system());
    const Date day(QDate(2026, 1, 20));
    EXPECT_EQ(locale.ParseDate(locale.ShortDate(day)), std::optional(day));
    std::cout << "shown: "
              << qPrintable(locale.FormatAmount(-1234.5) + u' ' + locale.ShortDate(day) + u' ' + locale.LongDate(day));
}

TEST(UserLocale, IsGermanWhateverTheEnvironmentSets) {
    struct Case {
        QStringList settings;
        QString shown;
    };
    const QString german = u"-1234,50 20.01.2026 Dienstag, 20. Januar 2026"_s;
    const Case cases[] = {
        {{u"LANG=de_DE.UTF-8"_s, u"LC_TIME=en_US.UTF-8"_s}, german},
        {{u"LANG=de_DE.UTF-8"_s, u"LC_TIME=C"_s}, german},
        {{u"LANG=de_DE.UTF-8"_s, u"LC_NUMERIC=ar_EG.UTF-8"_s}, german},
        {{u"LANG=de_AT.UTF-8"_s, u"LC_NUMERIC=en_US.UTF-8"_s}, u"-1234,50 20.01.2026 Dienstag, 20. Jänner 2026"_s},
        {{u"LANG=de_CH.UTF-8"_s, u"LC_TIME=fr_CH.UTF-8"_s}, u"-1234.50 20.01.2026 Dienstag, 20. Januar 2026"_s},
        {{u"LANG=en_US.UTF-8"_s, u"LC_NUMERIC=de_CH.UTF-8"_s}, german}};
    for (const Case &each : cases) {
        QProcess child;
        child.setEnvironment(each.settings);
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--gtest_also_run_disabled_tests"_s, u"--gtest_filter=*PrintsItsFormats"_s});
        EXPECT_TRUE(child.waitForFinished() && child.exitCode() == 0);
        const QString output = QString::fromUtf8(child.readAllStandardOutput());
        EXPECT_EQ(output.section(u"shown: "_s, 1).section(u'[', 0, 0), each.shown)
            << qPrintable(each.settings.join(u' '));
    }
}
