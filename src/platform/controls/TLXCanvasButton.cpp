#include "platform/controls/TLXCanvasButton.h"

TLXCanvasButton::TLXCanvasButton(const QString &name) : Canvas(name) {
    connect(this, &Canvas::MouseExit, this, &TLXCanvasButton::Event_MouseExit);
    connect(this, &Canvas::MouseEnter, this, &TLXCanvasButton::Event_MouseEnter);
    connect(this, &Canvas::Open, this, &TLXCanvasButton::Event_Open);
}

void TLXCanvasButton::PaintBackdrop(Color fill) {
    auto picture = std::make_unique<Picture>(Width(), Height());
    picture->SetForeColor(fill);
    picture->FillRect(0, 1, Width(), Height() - 1);
    picture->SetForeColor(BorderTop);
    picture->DrawLine(0, 0, Width(), 0);
    picture->SetForeColor(BorderBottom);
    picture->DrawLine(0, Height() - 1, Width(), Height() - 1);
    SetBackdrop(std::move(picture));
}
