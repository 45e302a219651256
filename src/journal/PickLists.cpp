#include "journal/PickLists.h"

#include "core/App.h"
#include "core/TLXModule.h"

using namespace Qt::StringLiterals;

namespace {

/// Puts the rows of a side into the list; false when the query failed.
bool LoadRows(SQLiteDatabase &database, const QString &sql, const QString &type,
              QLatin1StringView tagColumn, ComboBox &list) {
    SQLitePreparedStatement statement = database.Prepare(sql);
    statement.Bind(0, type);
    const auto records = statement.SQLSelect();
    if (!records) {
        return false;
    }
    list.DeleteAllRows();
    const auto name = records->Field("name"_L1);
    const auto tag = records->Field(tagColumn);
    for (int row = 0; !records->AtEnd(); records->MoveNext()) {
        list.AddRow(name.StringValue());
        list.SetRowTag(row++, tag.StringValue());
    }
    return true;
}

} // namespace

PickLists::PickLists(App &app)
    : TaxCombo(u"TaxCombo"_s), CategoryCombo(u"CategoryCombo"_s), app_(app) {
    connect(&TaxCombo, &Control::LostFocus, this, &PickLists::TaxCombo_LostFocus);
}

void PickLists::LoadAccounts(const QString &type) {
    const QString text = CategoryCombo.Text();
    const bool wasOffered = TLXModule::FindText(CategoryCombo, text) >= 0;
    const bool loaded = LoadRows(
        app_.kvoDB(), u"SELECT * FROM cash_accounts WHERE type = ? AND active = 1 ORDER BY name"_s,
        type, "account"_L1, CategoryCombo);
    if (loaded && (!wasOffered || TLXModule::FindText(CategoryCombo, text) >= 0)) {
        CategoryCombo.SetText(text);
    }
}

void PickLists::LoadTax(const QString &type) {
    LoadRows(app_.kvoDB(), u"SELECT * FROM cash_tax WHERE type = ? AND active = 1 ORDER BY name"_s,
             type, "value"_L1, TaxCombo);
    TaxCombo.SetListIndex(0);
}

void PickLists::SelectTypedRows() {
    TLXModule::IndexOf(TaxCombo, TaxCombo.Text());
    TLXModule::IndexOf(CategoryCombo, CategoryCombo.Text());
}

void PickLists::TaxCombo_LostFocus() {
    TLXModule::IndexOf(TaxCombo, TaxCombo.Text());
}
