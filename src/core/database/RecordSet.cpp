#include "core/database/RecordSet.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString RowHasGone() {
    return u"Der Datensatz ist nicht mehr vorhanden."_s;
}

QString ColumnIsMissing() {
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
        // The tables' names are plain letters.
        const QLatin1StringView known(columns_[column].name);
        if (QAnyStringView::compare(name, known, Qt::CaseInsensitive) == 0) {
            return {*this, static_cast<int>(column)};
        }
    }
    return {*this, -1};
}

void RecordSet::Edit() {
    changes_.clear();
    statement_->Owner()->SetError(AtEnd() ? RowHasGone() : QString());
}

void RecordSet::Update() {
    if (AtEnd() || changes_.empty()) {
        return;
    }
    const auto isKnown = [this](const auto &change) { return HasColumn(change.first); };
    if (!std::all_of(changes_.begin(), changes_.end(), isKnown)) {
        statement_->Owner()->SetError(ColumnIsMissing());
        return;
    }
    const QString id = Field("id"_L1).StringValue();
    // The query's lock would keep another program from ending its write, and so this one waiting.
    statement_->Reset();
    hasRow_ = false;
    Statement update(statement_->Owner(), UpdateText());
    int parameter = 0;
    bool fine = update.IsValid();
    for (const auto &[column, text] : changes_) {
        fine = fine && update.Bind(parameter++, text);
    }
    if (!fine || !update.Bind(parameter, id)) {
        return;
    }
    // An UPDATE has no rows; a failure stands in Error.
    static_cast<void>(update.Step());
    if (!update.Owner()->Error() && update.Owner()->Changes() == 0) {
        update.Owner()->SetError(RowHasGone());
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
