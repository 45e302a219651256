#pragma once

#include "platform/Control.h"

class Graphics;

/// An area that the program draws and that answers the mouse.
class Canvas : public Control {
    Q_OBJECT

public:
    explicit Canvas(const QString &name) : Control(name) {}

Q_SIGNALS:
    void Paint(Graphics &graphics);
    void MouseDown(int x, int y);
    void MouseEnter();
    void MouseExit();
};
