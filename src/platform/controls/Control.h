#pragma once

#include <QObject>
#include <QString>

#include <utility>

/// Base class of all controls: object name, visible and enabled state, hint and keyboard focus.
///
/// A control stores state and emits signals. It draws nothing: a view displays it and calls it on
/// user input. Handlers run within the call that changes the state.
class Control : public QObject {
    Q_OBJECT

public:
    explicit Control(const QString &name) { setObjectName(name); }

    bool Visible() const { return visible_; }
    void SetVisible(bool visible) { Assign(visible_, visible); }
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled) { Assign(enabled_, enabled); }

    /// A remark about the typed text, which is accepted nevertheless; empty if there is none. The
    /// view shows it below the field while the field has the focus.
    QString Hint() const { return hint_; }
    void SetHint(const QString &hint) {
        if (std::exchange(hint_, hint) != hint) {
            Q_EMIT HintChanged();
        }
    }

    /// Requests the keyboard focus, which only a visible control can get. The control that loses
    /// the focus emits LostFocus.
    void SetFocus() { Q_EMIT FocusRequested(); }

Q_SIGNALS:
    void GotFocus();
    void LostFocus();
    /// For the view: emitted when the displayed state has changed, before the control's own signal.
    void Updated();
    /// For the view: emitted when the hint has changed.
    void HintChanged();
    /// For the view: emitted to move the keyboard focus to the control.
    void FocusRequested();

protected:
    /// Sets a member that the view displays. If the value differs, emits Updated and returns true.
    template <typename Value>
    bool Assign(Value &member, const Value &value) {
        if (std::exchange(member, value) == value) {
            return false;
        }
        Q_EMIT Updated();
        return true;
    }

private:
    bool visible_ = true;
    bool enabled_ = true;
    QString hint_;
};
