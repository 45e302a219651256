#include "platform/controls/TLXPlusMinusButton.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Color signColor{0x333333};

} // namespace

TLXPlusMinusButton::TLXPlusMinusButton(const QString &name) : Canvas(name) {
    connect(this, &Canvas::MouseUp, this, &TLXPlusMinusButton::Event_MouseUp);
    connect(this, &Canvas::Paint, this, &TLXPlusMinusButton::Event_Paint);
    connect(this, &Canvas::MouseDown, this, &TLXPlusMinusButton::Event_MouseDown);
}

void TLXPlusMinusButton::Event_Paint(Graphics &graphics) {
    scaleXY_ = std::min(Width() / 2.0, static_cast<double>(Height()));
    const double side = std::trunc(scaleXY_);
    graphics.SetForeColor(FillColor);
    if (pushPlus_) {
        graphics.FillRect(0, 0, side, side);
    }
    if (pushMinus_) {
        graphics.FillRect(side, 0, side, side);
    }
    graphics.SetForeColor(BorderColor);
    graphics.DrawRect(0, 0, std::trunc(scaleXY_ - 1), side);
    graphics.DrawRect(std::trunc(scaleXY_ + 1), 0, side, side);

    graphics.SetForeColor(signColor);
    const double middle = std::trunc(scaleXY_ / 2);
    const double from = std::trunc(scaleXY_ / 3);
    const double to = std::trunc(2 * scaleXY_ / 3);
    graphics.DrawLine(from, middle, to, middle);
    graphics.DrawLine(middle, from, middle, to);
    graphics.DrawLine(std::trunc(scaleXY_ + scaleXY_ / 3), middle,
                      std::trunc(scaleXY_ + 2 * scaleXY_ / 3), middle);
}

void TLXPlusMinusButton::Event_MouseDown(int x) {
    pushPlus_ = x < scaleXY_;
    pushMinus_ = !pushPlus_;
    Refresh();
}

void TLXPlusMinusButton::Event_MouseUp(int x, int y) {
    if (y >= 0 && y <= scaleXY_) {
        if (x >= 0 && x < scaleXY_) {
            Q_EMIT PlusPressed();
        } else if (x > scaleXY_ && x <= 2 * scaleXY_) {
            Q_EMIT MinusPressed();
        }
    }
    pushPlus_ = false;
    pushMinus_ = false;
    Refresh();
}
