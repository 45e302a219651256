#include "desktop/fields/Announcement.h"

#include <QAccessibleWidget>
#include <QWidget>

using namespace Qt::StringLiterals;

void Announce(QWidget &window, const QString &text) {
    // Screen readers speak the name of a notification that appears. Qt has an event for
    // announcements only from 6.8 on, and its alerts and changed descriptions are not spoken.
    auto *notification = window.findChild<QWidget *>(u"Announcement"_s);
    if (notification == nullptr) {
        notification = new QWidget(&window);
        notification->setObjectName(u"Announcement"_s);
        // Owned by Qt's cache, which deletes it with the widget.
        QAccessible::registerAccessibleInterface(
            new QAccessibleWidget(notification, QAccessible::Notification));
    }
    notification->setAccessibleName(text);
    QAccessibleEvent appears(notification, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appears);
}
