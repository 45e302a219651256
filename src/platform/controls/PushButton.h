#pragma once

#include "platform/controls/Control.h"

/// A button with a caption.
class PushButton : public Control {
    Q_OBJECT

public:
    /// The default button also takes Return, the cancel button Escape, each while it shows.
    enum class Role { Plain, Default, Cancel };

    PushButton(const QString &name, const QString &caption, Role role = Role::Plain)
        : Control(name), caption_(caption), role_(role) {}

    QString Caption() const { return caption_; }
    Role Kind() const { return role_; }

    /// A click; nothing happens while the button is hidden or disabled.
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
