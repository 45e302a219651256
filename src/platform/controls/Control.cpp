#include "platform/controls/Control.h"

#include <utility>

Control::Control(const QString &name) {
    setObjectName(name);
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) {
        return;
    }
    visible_ = visible;
    Q_EMIT Updated();
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) {
        return;
    }
    enabled_ = enabled;
    Q_EMIT Updated();
}

void Control::Say(QString &place, const QString &text) {
    if (std::exchange(place, text) != text) {
        Q_EMIT HintChanged();
    }
}
