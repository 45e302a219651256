#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <cstdio>

/// Prints a line when a window has been painted with its widgets, and quits the program.
class PaintWatch : public QObject {
public:
    PaintWatch(const QString &window, QCoreApplication *application)
        : QObject(application), window_(window) {
        application->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == window_) {
            QCoreApplication::instance()->removeEventFilter(this);
            // Its widgets are painted after it, before the next event.
            QTimer::singleShot(0, this, [] {
                std::puts("painted");
                std::fflush(stdout);
                QCoreApplication::quit();
            });
        }
        return false;
    }

private:
    QString window_;
};
