#pragma once

#include "platform/outside/FolderItem.h"

/// A colour as 24-bit RGB.
struct Color {
    quint32 rgb = 0;

    friend bool operator==(Color, Color) = default;
};

/// A surface to draw on: screen, picture or paper. Coordinates are points from its top left corner.
class Graphics {
public:
    Graphics() = default;
    Graphics(const Graphics &) = delete;
    Graphics &operator=(const Graphics &) = delete;
    virtual ~Graphics() = default;

    virtual double Width() const = 0;
    virtual double Height() const = 0;

    /// The colour of the drawing that follows.
    virtual void SetForeColor(Color color) = 0;
    /// A line of one point, both of its ends included.
    virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
    /// An outline of one point, from left and top to left + width and top + height, both included,
    /// or to the last point of the surface.
    virtual void DrawRect(double left, double top, double width, double height) = 0;
    virtual void FillRect(double left, double top, double width, double height) = 0;
    /// The picture in a file, in its own size. A missing file draws nothing.
    virtual void DrawPicture(const FolderItem &file, double x, double y) = 0;
};
