#pragma once

#include "platform/controls/Canvas.h"

/// A plus and a minus button in two square halves. The position of the release determines the
/// signal, not that of the press; a release outside the halves emits nothing.
class TLXPlusMinusButton : public Canvas {
    Q_OBJECT

public:
    explicit TLXPlusMinusButton(const QString &name);

    Color BorderColor{0xCCCCCC};
    Color HoverColor{0xE6E6E6};
    /// The fill colour of the pressed half.
    Color FillColor{0xCCCCCC};

Q_SIGNALS:
    void PlusPressed();
    void MinusPressed();

private:
    void Event_MouseUp(int x, int y);
    void Event_Paint(Graphics &graphics);
    void Event_MouseDown(int x);

    /// The side length of a half, in points; 0 until the first paint.
    double scaleXY_ = 0;
    bool pushMinus_ = false;
    bool pushPlus_ = false;
};
