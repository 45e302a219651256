#pragma once

#include <QPushButton>

class PushButton;

/// Shows a PushButton. Return and Escape reach the default and the cancel button through the page.
class PushButtonView : public QPushButton {
    Q_OBJECT

public:
    PushButtonView(PushButton &button, QWidget *parent);
};
