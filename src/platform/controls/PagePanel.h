#pragma once

#include "platform/controls/Control.h"

/// Pages in one place, one of which shows. A control on a page that goes loses the focus.
class PagePanel : public Control {
    Q_OBJECT

public:
    explicit PagePanel(const QString &name) : Control(name) {}

    /// The shown page, from 0.
    int Value() const { return value_; }
    void SetValue(int page) { Assign(value_, page); }

private:
    int value_ = 0;
};
