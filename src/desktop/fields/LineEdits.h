#pragma once

class QLineEdit;

/// Replaces line breaks and other control characters in what the user types, pastes or drops from
/// now on; the text that the line edit already has is not changed before the next edit.
void AcceptOneLine(QLineEdit &edit);

/// Scrolls a text that the program has set back to its beginning, unless the user is editing it.
void ShowBeginning(QLineEdit &edit);
