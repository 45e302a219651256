#pragma once

#include "platform/controls/Control.h"

/// One line of text that the user types.
class TextField : public Control {
    Q_OBJECT

public:
    explicit TextField(const QString &name, const QString &text = {});

    QString Text() const { return text_; }
    /// Fires TextChange when the text differs, also for a write by the program.
    void SetText(const QString &text);

Q_SIGNALS:
    void TextChange();

private:
    QString text_;
};
