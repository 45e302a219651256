#pragma once

#include "platform/drawing/Graphics.h"

#include <functional>
#include <vector>

/// An off-screen picture to draw into. It keeps the drawing and not its points, so that it is sharp
/// on a screen of any resolution.
class Picture : public Graphics {
public:
    Picture(double width, double height) : width_(width), height_(height) {}

    double Width() const override { return width_; }
    double Height() const override { return height_; }
    void SetForeColor(Color color) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double left, double top, double width, double height) override;
    void FillRect(double left, double top, double width, double height) override;
    void DrawPicture(const FolderItem &file, double x, double y) override;

    /// Repeats what was drawn here on another surface.
    void DrawOn(Graphics &surface) const;

private:
    using Step = std::function<void(Graphics &)>;

    double width_;
    double height_;
    std::vector<Step> steps_;
};
