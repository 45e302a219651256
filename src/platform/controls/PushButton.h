#pragma once

#include "platform/controls/Control.h"

/// A button with a caption.
class PushButton : public Control {
    Q_OBJECT

public:
    /// While visible, the default button is also activated by Return, the cancel button by Escape.
    enum class Role { Plain, Default, Cancel };

    PushButton(const QString &name, const QString &caption, Role role = Role::Plain)
        : Control(name), caption_(caption), role_(role) {}

    QString Caption() const { return caption_; }
    Role Kind() const { return role_; }

    /// Emits Action. Does nothing while the button is hidden or disabled.
    void Press() {
        if (Visible() && Enabled()) {
            Q_EMIT Action();
        }
    }

Q_SIGNALS:
    void Action();

private:
    QString caption_;
    Role role_;
};
