#pragma once

#include <QFocusFrame>

/// Draws a frame around the widget with the focus in a window: the styles show the focus faintly,
/// on a default button not at all. A CanvasButton draws its own.
class FocusRing : public QFocusFrame {
    Q_OBJECT

public:
    explicit FocusRing(QWidget &window);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void SetFocusWidget(QWidget *focus);

    const QWidget &window_;
};
