#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <cstdio>

/// Tells by a line who has started the program that a window has been painted with all that is in
/// it, and ends the program.
class PaintWatch : public QObject {
public:
    PaintWatch(const QString &window, QCoreApplication *application)
        : QObject(application), window_(window) {
        application->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == window_) {
            QCoreApplication::instance()->removeEventFilter(this);
            // The widgets in the window are painted after it, before the next event.
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
