#pragma once

#include <QLineEdit>

class DateControl;
class QAbstractButton;
class UserLocale;

/// Shows a DateControl: the user types a day, steps with keys and mouse wheel, or selects one in a
/// calendar. A text that is no valid day is not passed to the control; the field is red as long as
/// the control has its hint.
class DateControlView : public QLineEdit {
    Q_OBJECT

public:
    DateControlView(DateControl &control, const UserLocale &locale, QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Replaces the typed text by the control's day.
    void ShowDay();
    /// The same, and clears the hint.
    void DiscardTyped();
    void ShowValidity();
    /// Passes the typed text to the control; returns false if it is no valid day.
    [[nodiscard]] bool CommitTyped();
    /// Passes the typed text to the control, or discards it with a hint.
    void CommitOrDiscard();

    bool HandleKey(const QKeyEvent &event);
    bool StepBy(int key);
    void Step(void (DateControl::*step)(int), int count);
    /// Returns whether the key is part of the typed text, not a step.
    bool BelongsToText(int key) const;
    void OpenCalendar();

    DateControl &control_;
    const UserLocale &locale_;
    QAbstractButton *button_;
    /// True between press and release of the click that set the focus.
    bool isFocusingClick_ = false;
    /// The rotation of the wheel since the last whole step, in eighths of a degree.
    int wheelDelta_ = 0;
};
