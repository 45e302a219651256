#include "platform/drawing/Picture.h"

void Picture::SetForeColor(Color color) {
    commands_.emplace_back([=](Graphics &surface) { surface.SetForeColor(color); });
}

void Picture::DrawLine(double x1, double y1, double x2, double y2) {
    commands_.emplace_back([=](Graphics &surface) { surface.DrawLine(x1, y1, x2, y2); });
}

void Picture::DrawRect(double left, double top, double width, double height) {
    commands_.emplace_back([=](Graphics &surface) { surface.DrawRect(left, top, width, height); });
}

void Picture::FillRect(double left, double top, double width, double height) {
    commands_.emplace_back([=](Graphics &surface) { surface.FillRect(left, top, width, height); });
}

void Picture::DrawPicture(const FolderItem &file, double x, double y) {
    commands_.emplace_back([=](Graphics &surface) { surface.DrawPicture(file, x, y); });
}

void Picture::DrawOn(Graphics &surface) const {
    for (const Command &command : commands_) {
        command(surface);
    }
}
