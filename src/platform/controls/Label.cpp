#include "platform/controls/Label.h"

#include <utility>

Label::Label(const QString &name, const QString &text) : Control(name), text_(text) {}

void Label::Write(QString &place, const QString &text) {
    if (std::exchange(place, text) != text) {
        Q_EMIT Updated();
    }
}
