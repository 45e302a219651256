#include "platform/controls/TextField.h"

TextField::TextField(const QString &name, const QString &text) : Control(name), text_(text) {}

void TextField::SetText(const QString &text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    Q_EMIT Updated();
    Q_EMIT TextChange();
}
