#pragma once

#include <QWidget>

class Canvas;
class CanvasButton;

/// Shows a Canvas, as much larger as the desktop's letters are, and hands it what the mouse does.
/// It does not take the focus; its parts that are buttons take it from the Tab key.
class CanvasView : public QWidget {
    Q_OBJECT

public:
    CanvasView(Canvas &canvas, QWidget *parent);

    /// Makes a part of it work like a button for keys and assistive tools.
    CanvasButton *AddButton(const QString &name, const QRect &place);

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
    /// A point of the canvas, which knows no larger letters.
    QPoint ToCanvas(const QMouseEvent &event) const;

    Canvas &canvas_;
    bool opened_ = false;
};
