#include "platform/controls/TLXCanvasButton.h"
#include "platform/controls/TLXPlusMinusButton.h"
#include "support/DrawingRecorder.h"
#include "support/EventLog.h"
#include "support/GoogleTest.h"

/// Returns the drawing steps of a button, followed by those of its backdrop if it has one.
static QStringList Drawn(Canvas &button) {
    QStringList drawn;
    DrawingRecorder recorder(drawn);
    Q_EMIT button.Paint(recorder);
    if (button.Backdrop()) {
        button.Backdrop()->DrawOn(recorder);
    }
    return drawn;
}

TEST(TLXPlusMinusButton, DrawsBothSignsAndThePressedHalf) {
    TLXPlusMinusButton button("");
    const QStringList released = {"cccccc rect 0 0 28 29", "rect 30 0 29 29",
                                  "333333 line 9 14 19 14", "line 14 9 14 19", "line 38 14 48 14"};
    button.SetSize(60, 29);
    EXPECT_EQ(Drawn(button), released);
    Q_EMIT button.MouseDown(28, 5);
    EXPECT_EQ(Drawn(button).value(0), "cccccc fill 0 0 29 29");
    Q_EMIT button.MouseDown(29, 5);
    EXPECT_EQ(Drawn(button).value(0), "cccccc fill 29 0 29 29");
    Q_EMIT button.MouseUp(-1, 5);
    EXPECT_EQ(Drawn(button), released);
    button.SetSize(30, 29); // The width of two squares.
    EXPECT_EQ(Drawn(button).value(0), "cccccc rect 0 0 14 15");
}

TEST(TLXPlusMinusButton, IsPressedInTheHalfWhereTheMouseIsReleased) {
    struct Case {
        int x, y;
        QString pressed;
    };
    const QString plus = "PlusPressed Updated MouseUp";
    const QString minus = "MinusPressed Updated MouseUp";
    const QString none = "Updated MouseUp";
    const Case cases[] = {{0, 0, plus},   {28, 29, plus},  {29, 5, none},
                          {30, 5, minus}, {58, 29, minus}, {59, 5, none},
                          {-1, 5, none},  {5, -1, none},   {5, 30, none}};
    TLXPlusMinusButton button("");
    button.SetSize(60, 29);
    Drawn(button);
    EventLog log(button);
    for (const Case &each : cases) {
        Q_EMIT button.MouseUp(each.x, each.y);
        EXPECT_EQ(log.Take(), each.pressed) << each.x << ' ' << each.y;
    }
    Q_EMIT button.MouseDown(1, 1);
    EXPECT_EQ(log.Take(), "Updated MouseDown");
}

TEST(TLXCanvasButton, IsRedrawnWhenThePointerEntersAndLeaves) {
    TLXCanvasButton button("");
    button.SetSize(245, 100);
    const QStringList borders = {"ffffff line 0 0 245 0", "cccccc line 0 99 245 99"};
    EventLog log(button);
    Q_EMIT button.Open();
    EXPECT_EQ(Drawn(button), QStringList("f1f1f1 fill 0 1 245 99") + borders);
    Q_EMIT button.MouseEnter();
    EXPECT_EQ(Drawn(button), QStringList("e6e6e6 fill 0 1 245 99") + borders);
    Q_EMIT button.MouseExit();
    EXPECT_EQ(Drawn(button), QStringList("f1f1f1 fill 0 1 245 99") + borders);
    EXPECT_EQ(log.Take().count("Updated"), 3);
}
