#include "platform/values/UserLocale.h"

#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

TEST(UserLocale, RoundsHalfAwayFromZeroOnTheShortestText) {
    const UserLocale german(QLocale(QLocale::German, QLocale::Germany));
    // A number, as an amount and as a balance.
    const QString cases = u"0=0,00 ,00|-0.5=-0,50 -,50|-0.004=0,00 ,00|-0.005=-0,01 -,01|"
                          "1.005=1,01 1,01|999.995=1000,00 1000,00|0.995=1,00 1,00|"
                          "1234567.891=1234567,89 1234567,89|5e-324=0,00 ,00"_s;
    for (const QString &each : cases.split(u'|')) {
        const double value = each.section(u'=', 0, 0).toDouble();
        EXPECT_EQ(german.FormatAmount(value) + u' ' + german.FormatBalance(value),
                  each.section(u'=', 1));
    }
}

/// What the test after this one reads, in an environment of its own.
TEST(UserLocale, DISABLED_ShowsItself) {
    const UserLocale locale(QLocale::system());
    const Date day(QDate(2026, 1, 20));
    EXPECT_EQ(locale.ParseDate(locale.ShortDate(day)), std::optional(day));
    std::cout << "shown: "
              << qPrintable(locale.FormatAmount(-1234.5) + u' ' + locale.ShortDate(day) + u' ' +
                            locale.LongDate(day));
}

TEST(UserLocale, IsPlainGermanWhateverElseTheDesktopHasSet) {
    struct Case {
        QStringList settings;
        QString shown;
    };
    const QString german = u"-1234,50 20.01.2026 Dienstag, 20. Januar 2026"_s;
    const Case cases[] = {{{u"LANG=de_DE.UTF-8"_s, u"LC_TIME=en_US.UTF-8"_s}, german},
                          {{u"LANG=de_DE.UTF-8"_s, u"LC_TIME=C"_s}, german},
                          {{u"LANG=de_DE.UTF-8"_s, u"LC_NUMERIC=ar_EG.UTF-8"_s}, german},
                          {{u"LANG=de_AT.UTF-8"_s, u"LC_NUMERIC=en_US.UTF-8"_s},
                           u"-1234,50 20.01.2026 Dienstag, 20. Jänner 2026"_s},
                          {{u"LANG=de_CH.UTF-8"_s, u"LC_TIME=fr_CH.UTF-8"_s},
                           u"-1234.50 20.01.2026 Dienstag, 20. Januar 2026"_s},
                          {{u"LANG=en_US.UTF-8"_s, u"LC_NUMERIC=de_CH.UTF-8"_s}, german}};
    for (const Case &each : cases) {
        QProcess child;
        child.setEnvironment(each.settings);
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--gtest_also_run_disabled_tests"_s, u"--gtest_filter=*ShowsItself"_s});
        EXPECT_TRUE(child.waitForFinished() && child.exitCode() == 0);
        const QString output = QString::fromUtf8(child.readAllStandardOutput());
        EXPECT_EQ(output.section(u"shown: "_s, 1).section(u'[', 0, 0), each.shown)
            << qPrintable(each.settings.join(u' '));
    }
}

} // namespace
