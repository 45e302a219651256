#pragma once

#include <QString>

/// Returns the text for QToolTip, which otherwise interprets what looks like HTML.
QString ToolTipText(const QString &text);
