#pragma once

#include <QWidget>

class Canvas;

/// Shows a Canvas and hands it what the mouse does. It does not take the focus.
class CanvasView : public QWidget {
    Q_OBJECT

public:
    CanvasView(Canvas &canvas, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    Canvas &canvas_;
    bool opened_ = false;
};
