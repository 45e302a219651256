#include "platform/lists/SelectionControl.h"

#include <utility>

void SelectionControl::AddRow(const QString &text) {
    rows_.Append(text);
    Q_EMIT Updated();
}

void SelectionControl::SetRows(std::vector<Row> rows) {
    rows_.SetRows(std::move(rows));
    ForgetSelection();
    Q_EMIT Updated();
}
