#pragma once

#include "platform/drawing/Graphics.h"

#include <functional>
#include <vector>

/// An off-screen picture. Records drawing commands instead of pixels, so that it is sharp at any
/// screen resolution.
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

    /// Replays the recorded commands on another surface.
    void DrawOn(Graphics &surface) const;

private:
    using Command = std::function<void(Graphics &)>;

    double width_;
    double height_;
    std::vector<Command> commands_;
};
