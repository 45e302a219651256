#include "platform/controls/Label.h"

Label::Label(const QString &name, const QString &text) : Control(name), text_(text) {}

void Label::SetText(const QString &text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    Q_EMIT Updated();
}
