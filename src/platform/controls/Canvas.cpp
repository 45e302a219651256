#include "platform/controls/Canvas.h"

void Canvas::SetSize(int width, int height) {
    width_ = width;
    height_ = height;
}

void Canvas::SetBackdrop(std::unique_ptr<const Picture> picture) {
    backdrop_ = std::move(picture);
    Refresh();
}
