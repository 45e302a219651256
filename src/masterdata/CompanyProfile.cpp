#include "masterdata/CompanyProfile.h"

#include "core/App.h"
#include "core/TLXModule.h"

using namespace Qt::StringLiterals;

namespace {

struct Mapping {
    TextField CompanyProfile::*field;
    QLatin1StringView column;
};

constexpr Mapping mappings[] = {
    {&CompanyProfile::CompanyField, "company"_L1},
    {&CompanyProfile::DepartmentField, "department"_L1},
    {&CompanyProfile::FirstnameField, "firstname"_L1},
    {&CompanyProfile::LastnameField, "lastname"_L1},
    {&CompanyProfile::StreetField, "street"_L1},
    {&CompanyProfile::ZipField, "zipcode"_L1},
    {&CompanyProfile::CityField, "city"_L1},
    {&CompanyProfile::PhoneField, "phone"_L1},
    {&CompanyProfile::FaxField, "fax"_L1},
    {&CompanyProfile::EMailField, "email"_L1},
    {&CompanyProfile::HomepageField, "website"_L1},
    {&CompanyProfile::UIDField, "ustid"_L1},
};

} // namespace

CompanyProfile::CompanyProfile(const App &app)
    : CompanyField(u"CompanyField"_s), DepartmentField(u"DepartmentField"_s),
      FirstnameField(u"FirstnameField"_s), LastnameField(u"LastnameField"_s),
      StreetField(u"StreetField"_s), ZipField(u"ZipField"_s), CityField(u"CityField"_s),
      PhoneField(u"PhoneField"_s), FaxField(u"FaxField"_s), EMailField(u"EMailField"_s),
      HomepageField(u"HomepageField"_s), UIDField(u"UIDField"_s), CountryCombo(u"CountryCombo"_s),
      AccountFrameCombo(u"AccountFrameCombo"_s), CurrencyCombo(u"CurrencyCombo"_s), app_(app) {
    CountryCombo.SetVisible(false);
    AccountFrameCombo.SetEnabled(false);
    CurrencyCombo.SetEnabled(false);
    CurrencyCombo.AddRow(u"EUR"_s);
    CurrencyCombo.SetListIndex(0);
    for (const auto &[field, column] : mappings) {
        connect(&(this->*field), &TextField::TextChange, this, &CompanyProfile::MarkChanged);
    }
    for (const ComboBox *combo : {&CountryCombo, &AccountFrameCombo, &CurrencyCombo}) {
        connect(combo, &ComboBox::TextChanged, this, &CompanyProfile::MarkChanged);
    }
}

std::unique_ptr<RecordSet> CompanyProfile::SelectCompany() {
    auto records = app_.kvoDB().SQLSelect(u"SELECT * FROM core_company LIMIT 1"_s);
    app_.ReportError();
    return records;
}

void CompanyProfile::LoadFields() {
    const auto records = SelectCompany();
    if (!records) {
        return;
    }
    for (const auto &[field, column] : mappings) {
        (this->*field).SetText(records->Field(column).StringValue());
    }
    const QString country = records->Field("countryID"_L1).StringValue();
    CountryCombo.SetListIndex(TLXModule::GetRowTag(CountryCombo, country));
    AccountFrameCombo.SetText(records->Field("account_frame"_L1).StringValue());
    // Filling the controls has emitted their change signals.
    recordChange_ = false;
}

void CompanyProfile::SaveFields() {
    const auto records = SelectCompany();
    if (!records) {
        return;
    }
    records->Edit();
    if (app_.ReportError()) {
        return;
    }
    for (const auto &[field, column] : mappings) {
        records->Field(column).SetStringValue((this->*field).Text());
    }
    records->Update();
    app_.ReportError();
}
