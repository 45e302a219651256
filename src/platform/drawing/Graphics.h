#pragma once

#include "platform/outside/FolderItem.h"

/// A 24-bit RGB colour.
struct Color {
    quint32 rgb = 0;

    friend bool operator==(Color, Color) = default;
};

/// A surface to draw on: screen, picture or paper. Coordinates are in points from the top left
/// corner.
class Graphics {
public:
    Graphics() = default;
    Q_DISABLE_COPY_MOVE(Graphics)
    virtual ~Graphics() = default;

    virtual double Width() const = 0;
    virtual double Height() const = 0;

    /// Sets the colour of all subsequent drawing.
    virtual void SetForeColor(Color color) = 0;
    /// Draws a line one point wide, including both end points.
    virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
    /// Draws an outline one point wide, from left and top to left + width and top + height
    /// inclusive, limited to the last point of the surface.
    virtual void DrawRect(double left, double top, double width, double height) = 0;
    virtual void FillRect(double left, double top, double width, double height) = 0;
    /// Draws the picture in a file at its original size. Draws nothing if the file is missing.
    virtual void DrawPicture(const FolderItem &file, double x, double y) = 0;
};
