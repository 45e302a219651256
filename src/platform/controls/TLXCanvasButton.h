#pragma once

#include "platform/controls/Canvas.h"

/// A large flat panel to click on: a bright line above, a dark one below, and another fill while
/// the mouse is over it. It repaints on entering and leaving alone.
class TLXCanvasButton : public Canvas {
    Q_OBJECT

public:
    explicit TLXCanvasButton(const QString &name);

    /// A double click presses it once.
    bool CountsEachPress() const override { return false; }

    Color BorderTop{0xFFFFFF};
    Color BorderBottom{0xCCCCCC};
    Color HoverColor{0xE6E6E6};
    Color FillColor{0xF1F1F1};

private:
    void Event_MouseExit();
    void Event_MouseEnter();
    void Event_Open();
    void PaintBackdrop(Color fill);
};
