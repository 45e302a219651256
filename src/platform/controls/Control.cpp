#include "platform/controls/Control.h"

Control::Control(const QString &name) {
    setObjectName(name);
}

void Control::SetHint(const QString &hint) {
    if (std::exchange(hint_, hint) != hint) {
        Q_EMIT HintChanged();
    }
}
