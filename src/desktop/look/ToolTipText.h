#pragma once

#include <QString>

/// Returns the text for QToolTip, which would otherwise interpret what looks like HTML.
inline QString ToolTipText(const QString &text) {
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}
