#include "platform/controls/TextField.h"
#include "support/EventLog.h"
#include "support/GoogleTest.h"

TEST(Control, EmitsSignalsOnlyForChanges) {
    TextField field(u"Field"_s, u"a"_s);
    EventLog log(field);
    field.SetText(u"a"_s);
    field.SetVisible(true);
    field.SetHint({});
    EXPECT_EQ(log.Take(), QString());
    field.SetText(u"b"_s);
    EXPECT_EQ(log.Take(), u"Updated TextChange"_s);
}
