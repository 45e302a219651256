#pragma once

#include "platform/controls/Control.h"

/// A text that the user can't edit.
class Label : public Control {
    Q_OBJECT

public:
    explicit Label(const QString &name, const QString &text = {}) : Control(name), text_(text) {}

    QString Text() const { return text_; }
    void SetText(const QString &text) { Assign(text_, text); }
    /// The accessible name, which assistive tools use instead of the text to name the labelled
    /// control; if empty, they use the text.
    QString AccessibleName() const { return accessibleName_; }
    void SetAccessibleName(const QString &text) { Assign(accessibleName_, text); }

private:
    QString text_;
    QString accessibleName_;
};
