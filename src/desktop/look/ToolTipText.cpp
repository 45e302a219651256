#include "desktop/look/ToolTipText.h"

using namespace Qt::StringLiterals;

QString ToolTipText(const QString &text) {
    return text.isEmpty() ? QString() : u"<p>%1</p>"_s.arg(text.toHtmlEscaped());
}
