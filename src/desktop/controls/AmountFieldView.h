#pragma once

#include "desktop/controls/TextFieldView.h"

/// Shows a TextField for an amount in euro.
class AmountFieldView : public TextFieldView {
    Q_OBJECT

public:
    using TextFieldView::TextFieldView;

protected:
    /// The decimal key of the keypad writes a comma, whichever sign the keyboard layout gives it.
    void keyPressEvent(QKeyEvent *event) override;
};
