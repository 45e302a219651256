#pragma once

#include <QComboBox>

class ComboBox;

/// Shows a ComboBox, with a list of the rows that hold the typed text anywhere in theirs.
///
/// Return and Tab take the row that is marked in the list, else the first one that begins with the
/// typed text, else the first one that holds it; Escape closes the list and leaves the text. A
/// click elsewhere closes the list too, and does what it does without one.
class ComboBoxView : public QComboBox {
    Q_OBJECT

public:
    ComboBoxView(ComboBox &combo, QWidget *parent);

    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// A text that is cut tells all of itself as a tip: in a disabled field nobody can move to its
    /// end.
    bool event(QEvent *event) override;
    /// The list of completions is a window of its own and has to be given the font.
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void ShowCombo();
    void FitRow();
    void SetUpCompleter();
    bool HandleOutsidePress(const QMouseEvent &press);
    bool HandleCompletionKey(QKeyEvent *event);
    QString Completion() const;

    ComboBox &combo_;
};
