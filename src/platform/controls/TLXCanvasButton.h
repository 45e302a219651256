#pragma once

#include "platform/controls/Canvas.h"

/// A large flat button with a bright line at the top and a dark one at the bottom. Its fill colour
/// differs while the mouse is over it; only entering and leaving repaint it.
class TLXCanvasButton : public Canvas {
    Q_OBJECT

public:
    explicit TLXCanvasButton(const QString &name);

    /// A double click is one press.
    bool EmitsMouseDownOnDoubleClick() const override { return false; }

    Color BorderTop{0xFFFFFF};
    Color BorderBottom{0xCCCCCC};
    Color HoverColor{0xE6E6E6};
    Color FillColor{0xF1F1F1};

private:
    void Event_MouseExit() { PaintBackdrop(FillColor); }
    void Event_MouseEnter() { PaintBackdrop(HoverColor); }
    void Event_Open() { PaintBackdrop(FillColor); }
    void PaintBackdrop(Color fill);
};
