#include "shell/TLXCanvasButton.h"
#include "shell/TLXPlusMinusButton.h"
#include "support/DrawingRecorder.h"
#include "support/GoogleTest.h"

#include <QPoint>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

QString Painted(Canvas &canvas) {
    QStringList drawn;
    DrawingRecorder surface(drawn);
    if (canvas.Backdrop()) {
        canvas.Backdrop()->DrawOn(surface);
    }
    Q_EMIT canvas.Paint(surface);
    return drawn.join(u", "_s);
}

TEST(TLXCanvasButton, ShowsWhetherTheMouseIsOverIt) {
    TLXCanvasButton button(u"DemoCanvas"_s);
    EXPECT_EQ(Painted(button), u""_s);
    button.SetSize(245, 100);
    const QString plain = u"f1f1f1 fill 0 1 245 99, ffffff line 0 0 245 0, "
                          "cccccc line 0 99 245 99"_s;
    Q_EMIT button.Open();
    EXPECT_EQ(Painted(button), plain);
    Q_EMIT button.MouseEnter();
    EXPECT_TRUE(Painted(button).startsWith(u"e6e6e6 fill 0 1 245 99, "_s));
    Q_EMIT button.MouseExit();
    EXPECT_EQ(Painted(button), plain);
}

TEST(TLXPlusMinusButton, DrawsTwoHalvesAndCountsAPressWhereItIsReleased) {
    TLXPlusMinusButton button(u"CashBookAdd"_s);
    button.FillColor = Color{0xC0C0C0};
    button.SetSize(60, 29);
    const QString plain = u"cccccc rect 0 0 28 29, rect 30 0 29 29, 333333 line 9 14 19 14, "
                          "line 14 9 14 19, line 38 14 48 14"_s;
    EXPECT_EQ(Painted(button), plain);
    Q_EMIT button.MouseDown(28, 200);
    EXPECT_EQ(Painted(button), u"c0c0c0 fill 0 0 29 29, "_s + plain);
    Q_EMIT button.MouseDown(29, 0);
    EXPECT_EQ(Painted(button), u"c0c0c0 fill 29 0 29 29, "_s + plain);
    Q_EMIT button.MouseUp(200, 0);
    EXPECT_EQ(Painted(button), plain);
    button.SetSize(31, 100);
    EXPECT_TRUE(Painted(button).startsWith(u"cccccc rect 0 0 14 15, rect 16 0 15 15, "_s));

    button.SetSize(100, 29);
    Painted(button);
    const QSignalSpy plus(&button, &TLXPlusMinusButton::PlusPressed);
    const QSignalSpy minus(&button, &TLXPlusMinusButton::MinusPressed);
    const std::pair<QPoint, QString> cases[] = {
        {{0, 0}, u"1 0"_s},   {{28, 29}, u"2 0"_s}, {{29, 5}, u"2 0"_s}, {{30, 0}, u"2 1"_s},
        {{58, 29}, u"2 2"_s}, {{59, 5}, u"2 2"_s},  {{5, 30}, u"2 2"_s}, {{-1, 5}, u"2 2"_s},
        {{5, -1}, u"2 2"_s},  {{90, 5}, u"2 2"_s}};
    for (const auto &[released, counts] : cases) {
        Q_EMIT button.MouseDown(5, 5);
        Q_EMIT button.MouseUp(released.x(), released.y());
        EXPECT_EQ(u"%1 %2"_s.arg(plus.count()).arg(minus.count()), counts) << released.x();
    }
}

} // namespace
