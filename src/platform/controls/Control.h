#pragma once

#include <QObject>
#include <QString>

#include <utility>

/// What every control has: a name, whether it shows and can be used, and the keyboard focus.
///
/// A control holds state and fires events, and has nothing to draw with: a view shows it and hands
/// back what the user does. Events run inside the write that sets them off.
class Control : public QObject {
    Q_OBJECT

public:
    explicit Control(const QString &name);

    bool Visible() const { return visible_; }
    void SetVisible(bool visible) { Assign(visible_, visible); }
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled) { Assign(enabled_, enabled); }

    /// What there is to say about what was typed, though nothing of it is refused; empty when all
    /// is well. The view shows it below the field while that has the focus.
    QString Hint() const { return hint_; }
    void SetHint(const QString &hint);

    /// Asks for the keyboard focus, which only a control that shows can take. The control that
    /// loses it gets LostFocus.
    void SetFocus() { Q_EMIT FocusRequested(); }

Q_SIGNALS:
    void GotFocus();
    void LostFocus();
    /// For the view: what it shows has changed. Comes before the event of the control itself.
    void Updated();
    /// For the view: the hint is another.
    void HintChanged();
    /// For the view: give the control the keyboard focus.
    void FocusRequested();

protected:
    /// Sets a member that the view shows and emits Updated if it differs; true if it did.
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
