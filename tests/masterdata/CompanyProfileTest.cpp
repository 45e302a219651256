#include "masterdata/CompanyProfile.h"

#include "support/TestEnvironment.h"

TEST(CompanyProfile, WritesEachFieldOnlyToItsColumn) {
    TestEnvironment env;
    env.Run(u"UPDATE core_company SET countryID = 49, taxnumber = '7'"_s);
    CompanyProfile profile(env.app);
    profile.LoadFields();
    EXPECT_FALSE(profile.RecordChange());
    EXPECT_EQ(profile.CompanyField.Text() + profile.AccountFrameCombo.Text(), u"MusterSKR-03"_s);
    EXPECT_EQ(profile.CurrencyCombo.Text(), u"EUR"_s);
    int typed = 0;
    for (TextField *field :
         {&profile.CompanyField, &profile.DepartmentField, &profile.FirstnameField, &profile.LastnameField,
          &profile.StreetField, &profile.ZipField, &profile.CityField, &profile.PhoneField, &profile.FaxField,
          &profile.EMailField, &profile.HomepageField, &profile.UIDField}) {
        profile.LoadFields();
        field->SetText(QString::number(++typed));
        EXPECT_TRUE(profile.RecordChange()) << typed;
        profile.SaveFields();
    }
    EXPECT_EQ(env.Value(u"SELECT company || department || firstname || lastname || ' ' || street "
                        "|| zipcode || city || phone || ' ' || fax || email || website || ustid "
                        "|| ' ' || id || account_frame || countryID || taxnumber FROM core_company"_s),
              u"1234 5678 9101112 1SKR-03497"_s);
    env.Run(u"CREATE TRIGGER refuse UPDATE ON core_company BEGIN SELECT RAISE(FAIL, 'nein'); END"_s);
    profile.SaveFields();
    EXPECT_EQ(env.desktop.TakeMessages(), u"DB Error: nein"_s);
}
