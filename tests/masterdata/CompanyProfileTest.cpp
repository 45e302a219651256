#include "masterdata/CompanyProfile.h"

#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

TEST(CompanyProfile, WritesEachFieldIntoItsColumnAndReadsItBack) {
    Book book;
    book.Run(u"UPDATE core_company SET countryID = 49, taxnumber = '7'"_s);
    CompanyProfile profile(book.app);
    profile.LoadFields();
    EXPECT_EQ(profile.CompanyField.Text() + profile.AccountFrameCombo.Text(), u"MusterSKR-03"_s);
    EXPECT_EQ(profile.CurrencyCombo.Text(), u"EUR"_s);
    EXPECT_EQ(profile.CountryCombo.ListIndex(), -1);
    TextField *const fields[] = {
        &profile.CompanyField,  &profile.DepartmentField, &profile.FirstnameField,
        &profile.LastnameField, &profile.StreetField,     &profile.ZipField,
        &profile.CityField,     &profile.PhoneField,      &profile.FaxField,
        &profile.EMailField,    &profile.HomepageField,   &profile.UIDField};
    auto field = std::begin(fields);
    for (const QString &column : u"company department firstname lastname street zipcode city phone "
                                 "fax email website ustid"_s.split(u' ')) {
        const QString typed = u" 'Müßig' "_s + column;
        EXPECT_FALSE(profile.RecordChange());
        (*field)->SetText(typed);
        EXPECT_TRUE(profile.RecordChange()) << qPrintable(column);
        profile.SaveFields();
        EXPECT_EQ(book.Value(u"SELECT %1 FROM core_company"_s.arg(column)), typed);
        (*field)->SetText({});
        profile.LoadFields();
        EXPECT_EQ((*field++)->Text(), typed);
    }
    EXPECT_EQ(book.Value(u"SELECT id || account_frame || countryID || taxnumber || "
                         "(SELECT count(*) FROM core_company) FROM core_company"_s),
              u"1SKR-034971"_s);
}

TEST(CompanyProfile, TellsWhatFailsAndKeepsWhatWasTyped) {
    Book book;
    CompanyProfile profile(book.app);
    profile.LoadFields();
    profile.CityField.SetText(u"Köln"_s);
    book.Run(u"CREATE TRIGGER refuse BEFORE UPDATE ON core_company "
             "BEGIN SELECT RAISE(FAIL, 'refused'); END"_s);
    profile.SaveFields();
    book.Run(u"DELETE FROM core_company"_s);
    profile.SaveFields();
    EXPECT_EQ(book.Value(u"SELECT count(*) FROM core_company"_s), u"0"_s);
    book.app.NewDatabase();
    profile.LoadFields();
    profile.SaveFields();
    EXPECT_EQ(profile.CityField.Text(), u"Köln"_s);
    EXPECT_TRUE(profile.RecordChange());
    EXPECT_EQ(book.desktop.TakeMessages().count(u"DB Error: "_s), 4);
}

} // namespace
