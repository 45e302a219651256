#pragma once

#include <QLineEdit>

class HintView;
class Listbox;

/// The line edit over the open cell of a Listbox. Return ends the edit, and so does a click
/// elsewhere or the loss of the focus; Escape drops it; the list handles Tab. Of the keys that the
/// line edit does not use, only those that move the selection of the list are passed on to it.
class CellEditor : public QLineEdit {
    Q_OBJECT

public:
    CellEditor(Listbox &list, QWidget *parent);

protected:
    bool event(QEvent *event) override;
    /// Watches for clicks outside, also on what takes no focus.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void TextEdited(const QString &text);

    Listbox &list_;
    HintView *hint_;
};
