#include "platform/Text.h"

#include "support/GoogleTest.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

TEST(Text, ValReadsTheNumberAtTheStart) {
    const QString cases =
        u"=0|  12.5 EUR=12.5|\t-3=-3|+7=7|+-7=0|-=0|.=0|.5=0.5|5.=5|1e3x=1000|2e=2|1.234.56=1.234|"
        "12,5=12|EUR 5=0|inf=0|-nan=0|0x10=0|1 000=1|1e-400=0|\u00a09=9|-1e400=0|0."_s +
        QString(400, u'0') + u"1=0"_s;
    for (const QString &each : cases.split(u'|')) {
        EXPECT_EQ(Val(each.section(u'=', 0, 0)), each.section(u'=', 1).toDouble())
            << qPrintable(each);
    }
}

} // namespace
