#pragma once

#include <QWidget>

class Canvas;
class CanvasButton;

/// Shows a Canvas, scaled with the desktop's font, and passes mouse events to it. The keyboard
/// reaches only the buttons on it.
class CanvasView : public QWidget {
    Q_OBJECT

public:
    CanvasView(Canvas &canvas, QWidget *parent);

    /// Makes a part of the canvas a button for the keyboard and for assistive tools.
    CanvasButton *AddButton(const QString &name, const QRect &rect);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    /// Returns the position in coordinates of the canvas, which are not scaled.
    QPoint ToCanvas(const QMouseEvent &event) const;

    Canvas &canvas_;
    bool isOpen_ = false;
};
