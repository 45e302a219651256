#pragma once

#include <QAbstractButton>
#include <QRect>

class Canvas;

/// Makes a part of a Canvas a button for the keyboard (Tab, Space, Return) and for assistive tools.
/// It draws only its focus; mouse events go to the canvas below. CanvasView sets its geometry.
class CanvasButton : public QAbstractButton {
    Q_OBJECT

public:
    /// The rectangle is in coordinates of the canvas.
    CanvasButton(Canvas &canvas, const QString &name, const QRect &rect, QWidget *view);

    QRect Rect() const { return rect_; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Emits a mouse click on its centre.
    void Press();

    Canvas &canvas_;
    QRect rect_;
};
