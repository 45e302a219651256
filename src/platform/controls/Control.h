#pragma once

#include <QObject>
#include <QString>

/// What every control has: a name, whether it shows and can be used, and the keyboard focus.
///
/// A control holds state and fires events, and has nothing to draw with: a view shows it and hands
/// back what the user does. Events run inside the write that sets them off.
class Control : public QObject {
    Q_OBJECT

public:
    explicit Control(const QString &name);

    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);

    /// What there is to say about what was typed, though nothing of it is refused; empty when all
    /// is well. The view shows it below the field while that has the focus.
    QString Hint() const { return hint_; }
    void SetHint(const QString &hint) { Say(hint_, hint); }
    /// What has to be mended first, as a message says it; for those who can't see that.
    QString Complaint() const { return complaint_; }
    void SetComplaint(const QString &complaint) { Say(complaint_, complaint); }

    /// Asks for the keyboard focus, which only a control that shows can take. The control that
    /// loses it gets LostFocus.
    void SetFocus() { Q_EMIT FocusRequested(); }

Q_SIGNALS:
    void GotFocus();
    void LostFocus();
    /// For the view: what it shows has changed. Comes before the event of the control itself.
    void Updated();
    /// For the view: the hint or the complaint is another.
    void HintChanged();
    /// For the view: give the control the keyboard focus.
    void FocusRequested();

private:
    void Say(QString &place, const QString &text);

    bool visible_ = true;
    bool enabled_ = true;
    QString hint_;
    QString complaint_;
};
