#pragma once

#include <QString>

class QWidget;

/// Makes screen readers speak a text at once, for example an error that appears away from the
/// focused field.
void Announce(QWidget &window, const QString &text);
