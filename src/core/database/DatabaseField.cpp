#include "core/database/DatabaseField.h"

#include "core/database/RecordSet.h"
#include "platform/values/Text.h"

using namespace Qt::StringLiterals;

QString DatabaseField::StringValue() const {
    if (!records_->CanRead(column_)) {
        return {};
    }
    const Statement &statement = *records_->statement_;
    if (records_->IsBoolean(column_) && !statement.IsNull(column_)) {
        return statement.Number(column_) != 0 ? u"True"_s : u"False"_s;
    }
    return statement.Text(column_);
}

char DatabaseField::UpperCaseCharacter() const {
    return records_->CanRead(column_) ? records_->statement_->UpperCaseCharacter(column_) : '\0';
}

void DatabaseField::SetStringValue(const QString &text) {
    records_->changes_[column_] = text;
}

double DatabaseField::DoubleValue() const {
    if (!records_->CanRead(column_)) {
        return 0;
    }
    const Statement &statement = *records_->statement_;
    return statement.IsText(column_) ? Val(statement.Text(column_), u',')
                                     : statement.Number(column_);
}

std::optional<Date> DatabaseField::DateValue() const {
    return Date::FromSQL(StringValue());
}
