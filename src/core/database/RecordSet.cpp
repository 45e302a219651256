#include "core/database/RecordSet.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString RowMissingMessage() {
    return u"Der Datensatz ist nicht mehr vorhanden."_s;
}

QString ColumnMissingMessage() {
    return u"In der Datenbank fehlt eine Spalte."_s;
}

} // namespace

RecordSet::RecordSet(std::unique_ptr<Statement> statement, bool hasRow)
    : statement_(std::move(statement)), hasRow_(hasRow) {
    const int count = statement_->ColumnCount();
    columns_.reserve(static_cast<size_t>(count));
    for (int column = 0; column < count; ++column) {
        columns_.push_back({statement_->ColumnName(column), statement_->IsBoolean(column)});
    }
}

void RecordSet::MoveNext() {
    if (hasRow_) {
        hasRow_ = statement_->Step();
    }
}

DatabaseField RecordSet::Field(QAnyStringView name) {
    for (size_t column = 0; column < columns_.size(); ++column) {
        // All column names are ASCII.
        const QLatin1StringView columnName(columns_[column].name);
        if (QAnyStringView::compare(name, columnName, Qt::CaseInsensitive) == 0) {
            return {*this, static_cast<int>(column)};
        }
    }
    return {*this, -1};
}

void RecordSet::Edit() {
    changes_.clear();
    statement_->GetConnection()->SetError(AtEnd() ? RowMissingMessage() : QString());
}

void RecordSet::Update() {
    if (AtEnd() || changes_.empty()) {
        return;
    }
    const auto hasColumn = [this](const auto &change) { return HasColumn(change.first); };
    if (!std::all_of(changes_.begin(), changes_.end(), hasColumn)) {
        statement_->GetConnection()->SetError(ColumnMissingMessage());
        return;
    }
    const QString id = Field("id"_L1).StringValue();
    // Release the read lock of the query: another program could not commit because of it, and the
    // UPDATE would wait for that program.
    statement_->Reset();
    hasRow_ = false;
    Statement update(statement_->GetConnection(), UpdateText());
    int parameter = 0;
    bool isBound = update.IsValid();
    for (const auto &[column, text] : changes_) {
        isBound = isBound && update.Bind(parameter++, text);
    }
    if (!isBound || !update.Bind(parameter, id)) {
        return;
    }
    // An UPDATE returns no rows; a failure sets Error.
    static_cast<void>(update.Step());
    if (!update.GetConnection()->Error() && update.GetConnection()->Changes() == 0) {
        update.GetConnection()->SetError(RowMissingMessage());
    }
}

QString RecordSet::UpdateText() const {
    QStringList assignments;
    for (const auto &change : changes_) {
        const QByteArray &name = columns_[static_cast<size_t>(change.first)].name;
        assignments.append(QString::fromUtf8(name) + u" = ?"_s);
    }
    return u"UPDATE %1 SET %2 WHERE id = ?"_s.arg(QString::fromUtf8(statement_->TableName(0)),
                                                  assignments.join(u", "_s));
}
