#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

/// Records the names of the signals that an object emits, in their order.
class EventLog : public QObject {
    Q_OBJECT

public:
    explicit EventLog(const QObject &watched) {
        const QMetaObject &meta = *watched.metaObject();
        const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("Record()"));
        for (int index = QObject::staticMetaObject.methodCount(); index < meta.methodCount();
             ++index) {
            const QMetaMethod method = meta.method(index);
            const bool isOriginal = !(method.attributes() & QMetaMethod::Cloned);
            if (method.methodType() == QMetaMethod::Signal && isOriginal) {
                connect(&watched, method, this, slot);
            }
        }
    }

    /// Returns the names since the last call, separated by spaces. Signals whose name contains
    /// "About", which a model emits before a change, are not recorded.
    QString Take() { return std::exchange(names_, {}).join(QLatin1Char(' ')); }

private:
    Q_SLOT void Record() {
        const QMetaMethod signal = sender()->metaObject()->method(senderSignalIndex());
        if (!signal.name().contains("About")) {
            names_.append(QString::fromLatin1(signal.name()));
        }
    }

    QStringList names_;
};
