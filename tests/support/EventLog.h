#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

/// Writes down which events an object fires, in their order.
class EventLog : public QObject {
    Q_OBJECT

public:
    explicit EventLog(const QObject &watched) {
        const QMetaObject &kind = *watched.metaObject();
        const QMetaMethod note = staticMetaObject.method(staticMetaObject.indexOfSlot("Note()"));
        for (int place = QObject::staticMetaObject.methodCount(); place < kind.methodCount(); ++place) {
            const QMetaMethod each = kind.method(place);
            const bool isPlain = !(each.attributes() & QMetaMethod::Cloned);
            if (each.methodType() == QMetaMethod::Signal && isPlain) { connect(&watched, each, this, note); }
        }
    }

    /// The names since the last time, with a blank between them; not what a model is about to do.
    QString Take() { return std::exchange(names_, {}).join(QLatin1Char(' ')); }

private:
    Q_SLOT void Note() {
        const QMetaMethod fired = sender()->metaObject()->method(senderSignalIndex());
        if (!fired.name().contains("About")) { names_.append(QString::fromLatin1(fired.name())); }
    }

    QStringList names_;
};
