#pragma once

#include "core/database/DatabaseField.h"

#include <QHash>

/// Texts of which a book has few, many times over, such as taxes and categories: each is made once,
/// and shared by all that ask for it.
class SharedTexts {
public:
    /// The text of the field's current row.
    QString Of(const DatabaseField &field) {
        const QUtf8StringView text = field.RawText();
        const auto known = texts_.constFind(QByteArray::fromRawData(text.data(), text.size()));
        return known != texts_.constEnd()
                   ? *known
                   : *texts_.insert(QByteArray(text.data(), text.size()), field.StringValue());
    }

private:
    QHash<QByteArray, QString> texts_;
};
