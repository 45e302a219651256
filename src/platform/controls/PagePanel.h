#pragma once

#include "platform/controls/Control.h"

/// A stack of pages, one of which is visible. A control on a page that gets hidden loses the focus.
class PagePanel : public Control {
    Q_OBJECT

public:
    explicit PagePanel(const QString &name) : Control(name) {}

    /// Returns the index of the visible page, from 0.
    int Value() const { return value_; }
    void SetValue(int page) { Assign(value_, page); }

private:
    int value_ = 0;
};
