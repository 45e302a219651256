#pragma once

#include "platform/controls/Control.h"

/// A one-line text field.
class TextField : public Control {
    Q_OBJECT

public:
    explicit TextField(const QString &name, const QString &text = {})
        : Control(name), text_(text) {}

    QString Text() const { return text_; }
    /// Sets the text and emits TextChange if it differs, for changes by the user and the program.
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
