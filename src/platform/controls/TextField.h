#pragma once

#include "platform/controls/Control.h"

/// One line of text that the user types.
class TextField : public Control {
    Q_OBJECT

public:
    explicit TextField(const QString &name, const QString &text = {})
        : Control(name), text_(text) {}

    QString Text() const { return text_; }
    /// Fires TextChange when the text differs, also for a write by the program.
    void SetText(const QString &text) {
        if (Assign(text_, text)) {
            Q_EMIT TextChange();
        }
    }

Q_SIGNALS:
    void TextChange();

private:
    QString text_;
};
