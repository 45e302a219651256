#pragma once

#include <QLineEdit>

class HintView;
class Listbox;

/// The line edit over the open cell of a Listbox. Return, a click elsewhere and the loss of the
/// focus end the edit, Escape cancels it, Tab is handled by the list. Of the keys that the line
/// edit ignores, only those that move the selection are passed to the list.
class CellEditor : public QLineEdit {
    Q_OBJECT

public:
    CellEditor(Listbox &list, QWidget *parent);

protected:
    bool event(QEvent *event) override;
    /// Ends the edit on a click outside, also on a widget that does not accept the focus.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void TextEdited(const QString &text);

    Listbox &list_;
    HintView *hint_;
};
