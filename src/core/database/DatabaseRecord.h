#pragma once

#include <QString>

#include <utility>
#include <vector>

/// A row to insert: column names with their values as text.
class DatabaseRecord {
public:
    using Columns = std::vector<std::pair<QString, QString>>;

    void SetColumn(const QString &name, const QString &text) { columns_.emplace_back(name, text); }
    const Columns &AllColumns() const { return columns_; }

private:
    Columns columns_;
};
