#pragma once

#include "platform/controls/Control.h"
#include "platform/drawing/Picture.h"

#include <memory>

/// An area that the program draws and that answers the mouse.
class Canvas : public Control {
    Q_OBJECT

public:
    explicit Canvas(const QString &name) : Control(name) {}

    /// The size in points. It is 0 until the canvas shows.
    int Width() const { return width_; }
    int Height() const { return height_; }
    /// Called by the view when the canvas has been resized.
    void SetSize(int width, int height) {
        width_ = width;
        height_ = height;
    }

    /// The picture behind what Paint draws; none at the start.
    const Picture *Backdrop() const { return backdrop_.get(); }
    void SetBackdrop(std::unique_ptr<const Picture> picture) {
        backdrop_ = std::move(picture);
        Refresh();
    }

    /// Whether the second press of a double click is a MouseDown too.
    virtual bool CountsEachPress() const { return true; }

    /// Asks for a repaint, the background first.
    void Refresh() { Q_EMIT Updated(); }

Q_SIGNALS:
    /// Comes once, when the canvas has its size, before it shows.
    void Open();
    void Paint(Graphics &graphics);
    void MouseDown(int x, int y);
    /// Follows every MouseDown, also when the pointer has left the canvas since.
    void MouseUp(int x, int y);
    void MouseEnter();
    void MouseExit();

private:
    int width_ = 0;
    int height_ = 0;
    std::unique_ptr<const Picture> backdrop_;
};
