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
    const std::pair<TextField &, QString> fields[] = {{profile.CompanyField, u"company"_s},
                                                      {profile.DepartmentField, u"department"_s},
                                                      {profile.FirstnameField, u"firstname"_s},
                                                      {profile.LastnameField, u"lastname"_s},
                                                      {profile.StreetField, u"street"_s},
                                                      {profile.ZipField, u"zipcode"_s},
                                                      {profile.CityField, u"city"_s},
                                                      {profile.PhoneField, u"phone"_s},
                                                      {profile.FaxField, u"fax"_s},
                                                      {profile.EMailField, u"email"_s},
                                                      {profile.HomepageField, u"website"_s},
                                                      {profile.UIDField, u"ustid"_s}};
    for (const auto &[field, column] : fields) {
        profile.LoadFields();
        EXPECT_FALSE(profile.RecordChange());
        field.SetText(u" 'Müßig' "_s + column);
        EXPECT_TRUE(profile.RecordChange()) << qPrintable(column);
        profile.SaveFields();
        EXPECT_EQ(book.Value(u"SELECT %1 FROM core_company"_s.arg(column)), field.Text());
    }
    EXPECT_TRUE(profile.RecordChange());
    profile.LoadFields();
    for (const auto &[field, column] : fields) {
        EXPECT_EQ(field.Text(), u" 'Müßig' "_s + column);
    }
    EXPECT_EQ(book.Value(u"SELECT id || account_frame || countryID || taxnumber || "
                         "(SELECT count(*) FROM core_company) FROM core_company"_s),
              u"1SKR-034971"_s);
    EXPECT_EQ(book.desktop.messages, QStringList());
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
    EXPECT_EQ(book.desktop.messages.filter(u"DB Error: "_s).size(), 4);
}

} // namespace
