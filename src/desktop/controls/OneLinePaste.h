#pragma once

class QLineEdit;

/// Makes one line of whatever is pasted or dropped into the line edit from now on. What the program
/// writes into it stays as it is.
void TakeAsOneLine(QLineEdit &edit);

/// Pastes the clipboard as one line.
void PasteAsOneLine(QLineEdit &edit);
