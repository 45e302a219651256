#pragma once

#include "platform/controls/Control.h"

/// A caption that the program writes.
class Label : public Control {
    Q_OBJECT

public:
    explicit Label(const QString &name, const QString &text = {});

    QString Text() const { return text_; }
    void SetText(const QString &text);

private:
    QString text_;
};
