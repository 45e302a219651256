#pragma once

#include <QtGlobal>

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
    virtual void FillRect(double left, double top, double width, double height) = 0;
};
