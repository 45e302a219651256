#pragma once

#include <Qt>

class Label;
class PopupMenu;
class PushButton;
class QAbstractItemView;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;
class TextField;

/// Each of these creates the widget that shows a control, as a child of the parent, and binds the
/// two: BindControl in ControlBinding.h.
QLabel *CreateLabel(Label &label, QWidget *parent, Qt::Alignment alignment = Qt::AlignLeft);
/// Pasted and dropped text becomes one line. The widget may show less than the field contains: it
/// cuts a very long text and replaces line breaks; the field keeps its text until the user edits
/// it.
QLineEdit *CreateTextField(TextField &field, QWidget *parent);
/// A text field in which the decimal key of the keypad types a comma in any keyboard layout.
QLineEdit *CreateAmountField(TextField &field, QWidget *parent);
/// Return and Escape reach the default and the cancel button through the page.
QPushButton *CreatePushButton(PushButton &button, QWidget *parent);
/// The open list is as wide as its longest row.
QComboBox *CreatePopupMenu(PopupMenu &menu, QWidget *parent);

/// Replaces line breaks and other control characters in what the user types, pastes or drops from
/// now on; the text that the line edit already has is not changed before the next edit.
void AcceptOneLine(QLineEdit &edit);

/// Scrolls a text that the program has set back to its beginning, unless the user is editing it.
void ShowBeginning(QLineEdit &edit);

/// Makes the pop-up list of a combo box at least as wide as its longest row.
void FitToLongestRow(QAbstractItemView &list);
