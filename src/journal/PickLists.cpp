#include "journal/PickLists.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "platform/values/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

PickLists::PickLists(const App &app)
    : TaxCombo(u"TaxCombo"_s), CategoryCombo(u"CategoryCombo"_s), app_(app) {
    connect(&TaxCombo, &Control::LostFocus, this, &PickLists::TaxCombo_LostFocus);
}

void PickLists::LoadRows(const QString &sql, QLatin1StringView tagColumn, const QString &type,
                         ComboBox &list, QString &loadedType) const {
    SQLiteDatabase &database = app_.kvoDB();
    SQLitePreparedStatement statement = database.Prepare(sql);
    statement.Bind(0, type);
    const auto records = statement.SQLSelect();
    if (!records) {
        if (loadedType != type) {
            list.DeleteAllRows();
            loadedType.clear();
        }
        return;
    }
    const auto name = records->Field("name"_L1);
    const auto tag = records->Field(tagColumn);
    std::vector<ComboBox::Row> rows;
    for (; !records->AtEnd(); records->MoveNext()) {
        rows.push_back({name.StringValue(), tag.StringValue()});
    }
    // A damaged page sets the error only while the rows are read.
    loadedType = database.Error() ? QString() : type;
    // SQLite's default collation sorts umlauts after z.
    const auto less = [](const auto &a, const auto &b) { return CompareTexts(a.text, b.text) < 0; };
    if (!std::is_sorted(rows.begin(), rows.end(), less)) {
        std::stable_sort(rows.begin(), rows.end(), less);
    }
    // The rows rarely change while an amount is typed, and a screen reader follows each change.
    if (!list.HasRows(rows)) {
        list.SetRows(std::move(rows));
    }
}

void PickLists::LoadAccounts(const QString &type) {
    const QString text = CategoryCombo.Text();
    const bool wasInList = CategoryCombo.FindText(text) >= 0;
    LoadRows(u"SELECT * FROM cash_accounts WHERE type = ? AND active = 1 ORDER BY name"_s,
             "account"_L1, type, CategoryCombo, loadedAccountType_);
    if (!wasInList || CategoryCombo.FindText(text) >= 0) {
        CategoryCombo.SetText(text);
    }
}

void PickLists::LoadTax(const QString &type) {
    LoadRows(u"SELECT * FROM cash_tax WHERE type = ? AND active = 1 ORDER BY name"_s, "value"_L1,
             type, TaxCombo, loadedTaxType_);
    TaxCombo.SetListIndex(0);
}

void PickLists::LoadMissing(const QString &type) {
    if (!type.isEmpty() && loadedTaxType_ != type) {
        const QString typed = TaxCombo.Text();
        LoadTax(type);
        if (!typed.isEmpty()) {
            TaxCombo.SetText(typed);
        }
    }
    if (!type.isEmpty() && loadedAccountType_ != type) {
        LoadAccounts(type);
    }
}

void PickLists::SelectTax(const QString &key, const QString &name) {
    if (loadedTaxType_.isEmpty()) {
        TaxCombo.SetText(name);
    } else {
        TaxCombo.SetListIndex(TLXModule::GetRowTag(TaxCombo, key));
    }
}

void PickLists::SelectTypedRows() {
    TLXModule::IndexOf(TaxCombo, TaxCombo.Text());
    TLXModule::IndexOf(CategoryCombo, CategoryCombo.Text());
}

void PickLists::TaxCombo_LostFocus() {
    TLXModule::IndexOf(TaxCombo, TaxCombo.Text());
}
