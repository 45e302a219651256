#pragma once

#include "platform/controls/Control.h"
#include "platform/drawing/Picture.h"

#include <memory>

/// An area that the program draws, with mouse events.
class Canvas : public Control {
    Q_OBJECT

public:
    explicit Canvas(const QString &name) : Control(name) {}

    /// The size in points, 0 until the canvas is shown.
    int Width() const { return width_; }
    int Height() const { return height_; }
    /// Called by the view when the canvas has been resized.
    void SetSize(int width, int height) {
        width_ = width;
        height_ = height;
    }

    /// Returns the picture drawn before Paint is emitted, null by default.
    const Picture *Backdrop() const { return backdrop_.get(); }
    void SetBackdrop(std::unique_ptr<const Picture> picture) {
        backdrop_ = std::move(picture);
        Refresh();
    }

    /// Returns whether the second press of a double click emits MouseDown too.
    virtual bool EmitsMouseDownOnDoubleClick() const { return true; }

    /// Requests a repaint, including the background.
    void Refresh() { Q_EMIT Updated(); }

Q_SIGNALS:
    /// Emitted once, after the canvas has been sized and before it is shown.
    void Open();
    void Paint(Graphics &graphics);
    void MouseDown(int x, int y);
    /// Emitted after every MouseDown, even if the pointer has left the canvas.
    void MouseUp(int x, int y);
    void MouseEnter();
    void MouseExit();

private:
    int width_ = 0;
    int height_ = 0;
    std::unique_ptr<const Picture> backdrop_;
};
