#pragma once

#include "platform/controls/Canvas.h"

/// A plus and a minus in two square halves. A press counts where it is released, not where it went
/// down; a release outside the halves fires nothing.
class TLXPlusMinusButton : public Canvas {
    Q_OBJECT

public:
    explicit TLXPlusMinusButton(const QString &name);

    Color BorderColor{0xCCCCCC};
    Color HoverColor{0xE6E6E6};
    /// The fill of the half that is held down.
    Color FillColor{0xCCCCCC};

Q_SIGNALS:
    void PlusPressed();
    void MinusPressed();

private:
    void Event_MouseUp(int x, int y);
    void Event_Paint(Graphics &graphics);
    void Event_MouseDown(int x);

    /// The side of one half, in points; 0 until the first paint.
    double scaleXY_ = 0;
    bool pushMinus_ = false;
    bool pushPlus_ = false;
};
