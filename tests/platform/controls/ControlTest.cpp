#include "platform/controls/TextField.h"
#include "support/EventLog.h"
#include "support/GoogleTest.h"

TEST(Control, EmitsSignalsOnlyForChanges) {
    TextField field("Field", "a");
    EventLog log(field);
    field.SetText("a");
    field.SetVisible(true);
    field.SetHint({});
    EXPECT_EQ(log.Take(), QString());
    field.SetText("b");
    EXPECT_EQ(log.Take(), "Updated TextChange");
}
