#pragma once

#include <QWidget>

class Canvas;

/// Shows a Canvas and hands it what the mouse does.
class CanvasView : public QWidget {
    Q_OBJECT

public:
    CanvasView(Canvas &canvas, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    Canvas &canvas_;
};
