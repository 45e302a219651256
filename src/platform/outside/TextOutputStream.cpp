#include "platform/outside/TextOutputStream.h"

using namespace Qt::StringLiterals;

TextOutputStream::TextOutputStream(const FolderItem &file,
                                   const std::optional<FolderItem> &databaseFile)
    : file_(file.Path()) {
    if (databaseFile && file.IsSameFileAs(*databaseFile)) {
        failure_ = u"Sie ist das geöffnete Kassenbuch."_s;
        return;
    }
    // Unbuffered: with a buffer, data that a full disk accepts only in part counts as written.
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        Fail();
    }
}

void TextOutputStream::Write(const QByteArray &bytes) {
    qint64 written = 0;
    while (!failure_ && written < bytes.size()) {
        // On a full disk a write can be partial; only the next attempt fails.
        const qint64 count = file_.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0) {
            Fail();
        }
        written += count;
    }
}

bool TextOutputStream::Close() {
    if (!failure_ && !file_.commit()) {
        Fail();
    }
    return !failure_;
}

QString TextOutputStream::ErrorMessage() const {
    return u"Die Datei %1 konnte nicht geschrieben werden: %2"_s.arg(file_.fileName(),
                                                                     failure_.value_or(QString()));
}

void TextOutputStream::Fail() {
    failure_ = file_.errorString();
    file_.cancelWriting();
}
