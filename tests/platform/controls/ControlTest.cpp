#include "platform/controls/TextField.h"
#include "support/EventLog.h"
#include "support/GoogleTest.h"

TEST(Control, EmitsSignalsOnlyForChanges) {
    TextField field("", "a");
    EventLog log(field);
    field.SetText("a");
    field.SetHint({});
    field.SetText("b");
    EXPECT_EQ(log.Take(), "Updated TextChange");
}
