#pragma once

#include "platform/controls/Control.h"

/// A caption that the program writes.
class Label : public Control {
    Q_OBJECT

public:
    explicit Label(const QString &name, const QString &text = {}) : Control(name), text_(text) {}

    QString Text() const { return text_; }
    void SetText(const QString &text) { Assign(text_, text); }
    /// What assistive tools say in place of the text, as the name of what it is the caption of;
    /// empty for the text.
    QString SpokenText() const { return spokenText_; }
    void SetSpokenText(const QString &text) { Assign(spokenText_, text); }

private:
    QString text_;
    QString spokenText_;
};
