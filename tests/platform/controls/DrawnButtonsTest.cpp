#include "platform/controls/TLXCanvasButton.h"
#include "platform/controls/TLXPlusMinusButton.h"
#include "support/DrawingRecorder.h"
#include "support/EventLog.h"
#include "support/GoogleTest.h"

/// Returns the drawing steps of a button and its backdrop.
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
    button.SetSize(60, 29);
    EXPECT_EQ(Drawn(button).join('|'), "cccccc rect 0 0 28 29|rect 30 0 29 29|"
                                       "333333 line 9 14 19 14|line 14 9 14 19|line 38 14 48 14");
    EventLog log(button);
    Q_EMIT button.MouseDown(28, 5);
    EXPECT_EQ(Drawn(button).value(0), "cccccc fill 0 0 29 29");
    Q_EMIT button.MouseDown(29, 5);
    EXPECT_EQ(Drawn(button).value(0), "cccccc fill 29 0 29 29");
    Q_EMIT button.MouseUp(29, 5);
    EXPECT_EQ(Drawn(button).size(), 5) << "no half is filled";
    EXPECT_EQ(log.Take().count("Updated"), 3);
}

TEST(TLXPlusMinusButton, IsPressedInTheHalfWhereTheMouseIsReleased) {
    TLXPlusMinusButton button("");
    button.SetSize(60, 29);
    Drawn(button);
    EventLog log(button);
    for (const auto &[x, y] : {std::pair(0, 0), {28, 29}, {30, 0}, {58, 29}}) {
        Q_EMIT button.MouseUp(x, y);
    }
    for (const auto &[x, y] : {std::pair(-1, 5), {29, 5}, {59, 5}, {5, -1}, {5, 30}}) {
        Q_EMIT button.MouseUp(x, y);
    }
    EXPECT_EQ(log.Take().remove("Updated MouseUp").simplified(),
              "PlusPressed PlusPressed MinusPressed MinusPressed");
}

TEST(TLXCanvasButton, IsRedrawnWhenThePointerEntersAndLeaves) {
    TLXCanvasButton button("");
    button.SetSize(245, 100);
    Q_EMIT button.Open();
    EXPECT_EQ(Drawn(button).join('|'),
              "f1f1f1 fill 0 1 245 99|ffffff line 0 0 245 0|cccccc line 0 99 245 99");
    Q_EMIT button.MouseEnter();
    EXPECT_EQ(Drawn(button).value(0), "e6e6e6 fill 0 1 245 99");
    Q_EMIT button.MouseExit();
    EXPECT_EQ(Drawn(button).value(0), "f1f1f1 fill 0 1 245 99");
}
