#include "platform/menus/MenuItem.h"

#include <QMetaMethod>

#include <algorithm>

MenuItem::MenuItem(const Properties &properties)
    : text_(properties.text.toString()), keyboardShortcut_(properties.keyboardShortcut.toString()),
      command_(properties.command.toString()), kind_(properties.kind),
      autoEnable_(properties.autoEnable) {
    setObjectName(properties.name);
}

bool MenuItem::Enabled() const {
    static const QMetaMethod action = QMetaMethod::fromSignal(&MenuItem::Action);
    return autoEnable_ ? isSignalConnected(action) : enabled_;
}

void MenuItem::SetEnabled(bool enabled) {
    enabled_ = enabled;
    Q_EMIT Updated();
}

void MenuItem::SetVisible(bool visible) {
    visible_ = visible;
    Q_EMIT Updated();
}

MenuItem &MenuItem::Append(std::unique_ptr<MenuItem> item) {
    return *items_.emplace_back(std::move(item));
}

MenuItem &MenuItem::Child(QStringView name) {
    const auto found = std::find_if(items_.begin(), items_.end(), [name](const auto &item) {
        return item->objectName() == name;
    });
    if (found == items_.end()) {
        qFatal("There is no entry %s in the menu %s.", qUtf8Printable(name.toString()),
               qUtf8Printable(objectName()));
    }
    return **found;
}
