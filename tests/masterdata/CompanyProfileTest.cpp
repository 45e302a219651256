#include "masterdata/CompanyProfile.h"

#include "support/TestEnvironment.h"

TEST(CompanyProfile, WritesEachFieldOnlyToItsColumn) {
    TestEnvironment env;
    env.Run("UPDATE core_company SET countryID = 49, taxnumber = '7'");
    CompanyProfile profile(env.app);
    profile.LoadFields();
    EXPECT_FALSE(profile.RecordChange());
    EXPECT_EQ(profile.CompanyField.Text() + profile.AccountFrameCombo.Text(), "MusterSKR-03");
    EXPECT_EQ(profile.CurrencyCombo.Text(), "EUR");
    int typed = 0;
    for (TextField *field :
         {&profile.CompanyField, &profile.DepartmentField, &profile.FirstnameField,
          &profile.LastnameField, &profile.StreetField, &profile.ZipField, &profile.CityField,
          &profile.PhoneField, &profile.FaxField, &profile.EMailField, &profile.HomepageField,
          &profile.UIDField}) {
        profile.LoadFields();
        field->SetText(QString::number(++typed));
        EXPECT_TRUE(profile.RecordChange()) << typed;
        profile.SaveFields();
    }
    EXPECT_EQ(
        env.Value("SELECT company || department || firstname || lastname || ' ' || street "
                  "|| zipcode || city || phone || ' ' || fax || email || website || ustid "
                  "|| ' ' || id || account_frame || countryID || taxnumber FROM core_company"),
        "1234 5678 9101112 1SKR-03497");
    env.Run("CREATE TRIGGER refuse UPDATE ON core_company BEGIN SELECT RAISE(FAIL, 'nein'); END");
    profile.SaveFields();
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: nein");
}
