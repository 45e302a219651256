#pragma once

#include <QLineEdit>

class DateControl;
class QAbstractButton;
class UserLocale;

/// Shows a DateControl: a day to type over, to step with keys and wheel, or to choose in a
/// calendar. A text that is no day is refused for all to see and never reaches the control: the
/// field keeps its colour as long as the control has its hint.
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
    /// Shows the control's day in place of what was typed.
    void ShowDay();
    /// The same, and says no more about what was typed.
    void DiscardTyped();
    void ShowRefusal();
    /// Hands the typed text to the control; false if it had to be refused.
    [[nodiscard]] bool CommitTyped();
    /// Hands the typed text to the control, or drops it.
    void CommitOrDiscard();

    bool HandleKey(const QKeyEvent &event);
    bool StepBy(int key);
    void Step(void (DateControl::*step)(int), int count);
    /// Whether the key is a letter of what is being typed, and no step.
    bool BelongsToText(int key) const;
    void OpenCalendar();

    DateControl &control_;
    const UserLocale &locale_;
    QAbstractButton *button_;
    /// From the press that brought the focus to its release.
    bool focusingClick_ = false;
    /// What the wheel has turned beyond the last whole step, in eighths of a degree.
    int wheelRest_ = 0;
};
