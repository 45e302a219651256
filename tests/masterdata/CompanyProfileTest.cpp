#include "masterdata/CompanyProfile.h"

#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

TEST(CompanyProfile, WritesEachFieldIntoItsColumnAndLeavesTheRestAlone) {
    Book book;
    book.Run(u"UPDATE core_company SET countryID = 49, taxnumber = '7'"_s);
    CompanyProfile profile(book.app);
    profile.LoadFields();
    EXPECT_EQ(profile.CompanyField.Text() + profile.AccountFrameCombo.Text(), u"MusterSKR-03"_s);
    int typed = 0;
    for (TextField *field :
         {&profile.CompanyField, &profile.DepartmentField, &profile.FirstnameField,
          &profile.LastnameField, &profile.StreetField, &profile.ZipField, &profile.CityField,
          &profile.PhoneField, &profile.FaxField, &profile.EMailField, &profile.HomepageField,
          &profile.UIDField}) {
        field->SetText(QString::number(++typed));
        EXPECT_TRUE(profile.RecordChange());
        profile.SaveFields();
    }
    EXPECT_EQ(book.Value(u"SELECT company || ' ' || department || ' ' || firstname || ' ' || "
                         "lastname || ' ' || street || ' ' || zipcode || ' ' || city || ' ' || "
                         "phone || ' ' || fax || ' ' || email || ' ' || website || ' ' || ustid || "
                         "' - ' || id || account_frame || countryID || taxnumber "
                         "FROM core_company"_s),
              u"1 2 3 4 5 6 7 8 9 10 11 12 - 1SKR-03497"_s);
}

TEST(CompanyProfile, TellsWhatFailsAndKeepsWhatWasTyped) {
    Book book;
    CompanyProfile profile(book.app);
    profile.LoadFields();
    profile.CityField.SetText(u"Köln"_s);
    book.Run(u"DELETE FROM core_company"_s);
    profile.SaveFields();
    book.app.NewDatabase();
    profile.LoadFields();
    profile.SaveFields();
    EXPECT_EQ(profile.CityField.Text(), u"Köln"_s);
    EXPECT_TRUE(profile.RecordChange());
    EXPECT_EQ(book.desktop.TakeMessages().count(u"DB Error: "_s), 3);
}

} // namespace
