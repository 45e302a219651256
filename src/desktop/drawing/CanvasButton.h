#pragma once

#include <QAbstractButton>
#include <QRect>

class Canvas;

/// A part of a Canvas that works like a button: for the keys, which reach it with Tab and press it
/// with Space or Return, and for assistive tools. It draws nothing but the focus. The mouse goes
/// through it, and never brings it the focus. Its view puts it into its place.
class CanvasButton : public QAbstractButton {
    Q_OBJECT

public:
    /// The place is one on the canvas.
    CanvasButton(Canvas &canvas, const QString &name, const QRect &rect, QWidget *view);

    QRect Rect() const { return rect_; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// A click of the mouse on its middle.
    void Press();

    Canvas &canvas_;
    QRect rect_;
};
