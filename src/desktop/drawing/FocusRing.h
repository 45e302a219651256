#pragma once

#include <QFocusFrame>

/// A ring around whatever has the focus in a window: styles show it faintly, and on a default
/// button not at all. The parts of a canvas draw theirs themselves.
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
