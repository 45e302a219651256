#include "platform/controls/PushButton.h"

PushButton::PushButton(const QString &name, const QString &caption, Role role)
    : Control(name), caption_(caption), role_(role) {}

void PushButton::Press() {
    if (Visible() && Enabled()) {
        Q_EMIT Action();
    }
}
