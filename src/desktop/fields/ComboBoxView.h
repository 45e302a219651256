#pragma once

#include <QComboBox>

class ComboBox;

/// Shows a ComboBox and lists the rows that contain the typed text.
///
/// Return and Tab select the highlighted row of the list, else the first row that begins with the
/// typed text, else the first that contains it. Escape closes the list and leaves the text. A click
/// elsewhere closes the list and has its usual effect.
class ComboBoxView : public QComboBox {
    Q_OBJECT

public:
    ComboBoxView(ComboBox &combo, QWidget *parent);

    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Shows a text that is cut as a tool tip: a disabled field can't be scrolled.
    bool event(QEvent *event) override;
    /// Sets the font of the completion list, which is a window and does not inherit it.
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void ShowCombo();
    /// Fits the font to a selected row; typed text keeps its font.
    void FitRow();
    void SetUpCompleter();
    bool HandleOutsidePress(const QMouseEvent &press);
    bool HandleCompletionKey(QKeyEvent *event);
    QString Completion() const;

    ComboBox &combo_;
};
