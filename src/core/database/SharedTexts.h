#pragma once

#include "core/database/DatabaseField.h"

#include <string>
#include <unordered_map>

/// The texts of a column that holds few of them, many times over, such as taxes and categories:
/// each is made once, and shared by all rows that have it.
class SharedTexts {
public:
    explicit SharedTexts(const DatabaseField &field) : field_(field) {}

    /// That of the current row.
    QString Text() {
        const QUtf8StringView raw = field_.RawText();
        const std::string_view text(raw.data(), static_cast<size_t>(raw.size()));
        // Neighbours often share it.
        if (last_ == nullptr || last_->first != text) {
            const auto known = texts_.find(text);
            last_ = known != texts_.end() ? &*known
                                          : &*texts_.emplace(text, field_.StringValue()).first;
        }
        return last_->second;
    }

private:
    /// Finds a text without a copy of it.
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    DatabaseField field_;
    std::unordered_map<std::string, QString, Hash, std::equal_to<>> texts_;
    const std::pair<const std::string, QString> *last_ = nullptr;
};
