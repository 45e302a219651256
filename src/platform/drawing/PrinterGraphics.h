#pragma once

#include "platform/drawing/Graphics.h"

#include <QString>

/// A print job: a surface with text and pages. Coordinates are in points from the top left corner
/// of the paper, independent of the printer's resolution. The destructor ends the print job.
class PrinterGraphics : public Graphics {
public:
    /// SetTextFont and SetTextSize set the font family, and the size in points, of subsequent text.
    virtual void SetTextFont(const QString &family) = 0;
    virtual void SetTextSize(double size) = 0;
    virtual void SetBold(bool bold) = 0;
    virtual void SetUnderline(bool underline) = 0;
    /// Returns the line height in the current font, in points.
    virtual double TextHeight() const = 0;
    /// Draws one line of text without wrapping, with its baseline at y.
    virtual void DrawString(const QString &text, double x, double y) = 0;
    /// Ends the page and begins the next one.
    virtual void NextPage() = 0;
};
